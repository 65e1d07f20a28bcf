void Check()
{
    QTRY_VERIFY(false);
    QCOMPARE(1, 2);
    EXPECT_TRUE(true);
}
