#include <Tests/Support/QtSynchronization.h>

#include <QCoreApplication>
#include <QString>

#include <gtest/gtest.h>

#include <cstdio>

namespace
{

// An unexpected warning usually indicates a fault that no test checks for.
void FailOnWarning(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtDebugMsg || type == QtInfoMsg) {
        return;
    }
    ADD_FAILURE_AT(context.file != nullptr ? context.file : "(Qt)", context.line)
        << "Unexpected message of Qt: " << text.toStdString();
}

} // namespace

int main(int argc, char** argv)
{
    QtSynchronization::ApplicationFor<QCoreApplication> application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(&FailOnWarning);
    const int result = RUN_ALL_TESTS();
    qInstallMessageHandler(nullptr);
    return result;
}
