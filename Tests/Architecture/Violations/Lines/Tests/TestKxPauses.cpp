void Pauses()
{
    QTest::qWait(60);
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    while (!IsDone()) {
        std::this_thread::yield();
    }
    QTest::qWaitFor([] { return true; });
}
