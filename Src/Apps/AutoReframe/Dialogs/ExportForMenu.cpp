#include <Apps/AutoReframe/Dialogs/ExportForMenu.h>

#include <QCoreApplication>
#include <QMenu>

#include <array>

namespace
{

struct Program {
    const char* name;
    const char* suffix;
};
constexpr std::array<Program, 5> Programs{{{"Shotcut", "mlt"},
                                           {"Kdenlive", "kdenlive"},
                                           {"Final Cut Pro", "fcpxml"},
                                           {"After Effects", "txt"},
                                           {"ffmpeg", "ffscript"}}};

} // namespace

QMenu* ExportForMenu::AddTo(QMenu& menu, const std::function<void(const EditListTarget& target)>& choose)
{
    QMenu* const programs = menu.addMenu(QCoreApplication::translate("ExportForMenu", "Export for"));
    programs->setObjectName(QStringLiteral("ExportForMenu"));
    for (const Program& program : Programs) {
        const EditListTarget target{QLatin1String(program.name), QLatin1String(program.suffix)};
        const QString entry = QCoreApplication::translate("ExportForMenu", "%1 (.%2)…");
        programs->addAction(entry.arg(target.program, target.suffix), programs, [choose, target] { choose(target); });
    }
    return programs;
}
