#!/usr/bin/python3
"""check_desktop.py DRIVER: what the desktop's services are asked for while exports run (ExportDriver.cpp). The services are mocks on a bus of
their own. Needs Debian's package python3-dbusmock."""
import os, select, signal, subprocess, sys, tempfile, time, unittest

import dbus, dbus.mainloop.glib, dbusmock
from gi.repository import GLib

PORTAL = 'org.freedesktop.portal.Desktop'
REQUEST = '/org/freedesktop/portal/desktop/request/1'
NOTIFICATIONS = 'org.freedesktop.Notifications'
PATIENCE = 120


class TestDesktop(dbusmock.DBusTestCase):
    @classmethod
    def setUpClass(cls):
        dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
        cls.start_system_bus()
        cls.start_session_bus()
        cls.session = cls.get_dbus()

    def setUp(self):
        self.updates = []
        match = self.session.add_signal_receiver(lambda app, facts: self.updates.append((str(app), dict(facts))), 'Update',
                                                 'com.canonical.Unity.LauncherEntry')
        self.addCleanup(match.remove)
        self.driver = subprocess.Popen([DRIVER], stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding='utf-8', bufsize=1)
        self.addCleanup(self.driver.communicate)
        self.addCleanup(self.driver.kill)

    def serve(self, *arguments, system_bus=False):
        server = self.spawn_server(*arguments, system_bus=system_bus, stdout=subprocess.DEVNULL)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        return dbus.Interface(self.get_dbus(system_bus).get_object(*arguments[:2]), dbusmock.MOCK_IFACE)

    def serve_portal(self):
        portal = self.serve(PORTAL, '/org/freedesktop/portal/desktop', 'org.freedesktop.portal.Inhibit')
        portal.AddMethod('', 'Inhibit', 'sua{sv}', 'o', 'ret = dbus.ObjectPath("%s")' % REQUEST)
        portal.AddObject(REQUEST, 'org.freedesktop.portal.Request', {}, [('Close', '', '', '')])
        self.portal = portal
        self.request = dbus.Interface(self.session.get_object(PORTAL, REQUEST), dbusmock.MOCK_IFACE)

    def serve_logind(self):
        """Its lock is the writing end of a pipe, whose reading end is here."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        pipe = os.path.join(folder.name, 'lock')
        os.mkfifo(pipe)
        self.lock = os.open(pipe, os.O_RDONLY | os.O_NONBLOCK)
        self.addCleanup(os.close, self.lock)
        self.logind = self.serve('org.freedesktop.login1', '/org/freedesktop/login1', 'org.freedesktop.login1.Manager', system_bus=True)
        self.logind.AddMethod('', 'Inhibit', 'ssss', 'h', 'import os; lock = os.open("%s", os.O_WRONLY); '
                              'ret = dbus.types.UnixFd(lock); os.close(lock)' % pipe)

    def serve_notifications(self):
        self.notifications = self.serve(NOTIFICATIONS, '/org/freedesktop/Notifications', NOTIFICATIONS)
        self.notifications.AddMethod('', 'Notify', 'susssasa{sv}i', 'u', 'ret = 7')

    def send(self, command):
        self.driver.stdin.write(command + '\n')
        answer = self.driver.stdout.readline()
        self.assertEqual(answer, 'done %s\n' % command)

    def wait_for(self, what, condition):
        end = time.monotonic() + PATIENCE
        while not condition():
            self.assertLess(time.monotonic(), end, what)
            while GLib.MainContext.default().iteration(False):
                pass
            time.sleep(0.02)

    def portal_holds(self):
        return len(self.portal.GetMethodCalls('Inhibit')) - len(self.request.GetMethodCalls('Close')) == 1

    def logind_holds(self):
        """The end of the pipe's data shows that nobody has its writing end."""
        ready, _, _ = select.select([self.lock], [], [], 0)
        return len(self.logind.GetMethodCalls('Inhibit')) > 0 and not ready

    def is_on_bus(self):
        bus = self.session.get_object('org.freedesktop.DBus', '/org/freedesktop/DBus')
        try:
            return any(bus.GetConnectionUnixProcessID(name) == self.driver.pid for name in bus.ListNames() if name.startswith(':'))
        except dbus.DBusException:
            return True

    def check_lock(self, holds):
        self.send('add clip.mp4')
        self.wait_for('held while an export runs', holds)
        self.send('progress 5000')
        self.assertTrue(holds())
        self.send('end')
        self.wait_for('released at the end', lambda: not holds())
        self.send('add clip.mp4')
        self.wait_for('held again', holds)
        self.send('pause')
        self.wait_for('released while paused', lambda: not holds())
        self.send('continue')
        self.wait_for('held after the pause', holds)
        self.send('cancel')
        self.wait_for('released when cancelled', lambda: not holds())
        self.send('add clip.mp4')
        self.wait_for('held before the kill', holds)
        self.driver.send_signal(signal.SIGKILL)

    def test_portal_lock_is_held_while_exports_run(self):
        self.serve_portal()
        self.serve_logind()
        self.check_lock(self.portal_holds)
        # The portal gives up the locks of those who have left the bus.
        self.wait_for('off the bus after kill -9', lambda: not self.is_on_bus())
        _, (window, flags, options) = self.portal.GetMethodCalls('Inhibit')[0]
        self.assertEqual((window, flags), ('', 4))
        self.assertEqual(options, {'reason': 'Videos are being exported'})
        self.assertEqual(len(self.logind.GetMethodCalls('Inhibit')), 0)

    def test_logind_lock_is_held_where_there_is_no_portal(self):
        self.serve_logind()
        self.check_lock(self.logind_holds)
        self.wait_for('released by kill -9', lambda: not self.logind_holds())
        _, arguments = self.logind.GetMethodCalls('Inhibit')[0]
        self.assertEqual(arguments, ['sleep', 'Auto Reframe', 'Videos are being exported', 'block'])

    def test_lock_that_is_given_up_before_the_answer_is_released(self):
        self.serve_portal()
        self.portal.AddMethod('org.freedesktop.portal.Inhibit', 'Inhibit', 'sua{sv}', 'o',
                              'import time; time.sleep(0.5); ret = dbus.ObjectPath("%s")' % REQUEST)
        self.send('add clip.mp4')
        self.send('cancel')
        self.wait_for('asked', lambda: len(self.portal.GetMethodCalls('Inhibit')) == 1)
        self.wait_for('released', lambda: len(self.request.GetMethodCalls('Close')) == 1)

    def test_person_who_looks_elsewhere_is_notified(self):
        self.serve_notifications()
        for commands in [['look', 'add seen.mp4', 'end', 'look away'], ['add cancelled.mp4', 'cancel'], ['add clip.mp4', 'end'],
                         ['add bad.mp4', 'fail No <space> left.']]:
            for command in commands:
                self.send(command)
        self.wait_for('two notifications', lambda: len(self.notifications.GetMethodCalls('Notify')) == 2)
        done, failed = (list(arguments) for _, arguments in self.notifications.GetMethodCalls('Notify'))
        self.assertEqual(done, ['Auto Reframe', 0, 'auto-reframe', 'Exported clip.mp4', '', [], {'desktop-entry': 'auto-reframe'}, -1])
        self.assertEqual(failed[3:5], ['Cannot export bad.mp4', 'No &lt;space&gt; left.'])

    def test_next_notification_replaces_the_last_one(self):
        self.serve_notifications()
        self.send('add first.mp4')
        self.send('end')
        self.wait_for('the first', lambda: len(self.notifications.GetMethodCalls('Notify')) == 1)
        # Its answer precedes that of a later call on the same connection.
        self.serve_portal()
        self.send('add second.mp4')
        self.wait_for('held', self.portal_holds)
        self.send('end')
        self.wait_for('the second', lambda: len(self.notifications.GetMethodCalls('Notify')) == 2)
        self.assertEqual(self.notifications.GetMethodCalls('Notify')[1][1][1], 7)

    def test_launcher_shows_progress(self):
        self.send('add clip.mp4')
        self.send('progress 2500')
        self.wait_for('a quarter', lambda: self.updates and self.updates[-1][1]['progress'] == 0.25)
        self.assertEqual(self.updates[-1], ('application://auto-reframe.desktop', {'progress': 0.25, 'progress-visible': True}))
        self.send('end')
        self.wait_for('removed', lambda: not self.updates[-1][1]['progress-visible'])

    def test_nothing_happens_where_there_are_no_services(self):
        for command in ['add clip.mp4', 'progress 5000', 'end', 'add other.mp4', 'fail Disk full.', 'add third.mp4', 'cancel']:
            self.send(command)
        self.assertIsNone(self.driver.poll())


DRIVER = os.path.abspath(sys.argv.pop(1))
unittest.main(verbosity=2)
