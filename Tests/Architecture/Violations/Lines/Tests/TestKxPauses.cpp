void Pauses()
{
    QTest::qWait(60);
    std::this_thread::sleep_for(std::chrono::milliseconds(60));
    QTest::qWaitFor([] { return true; });
}
