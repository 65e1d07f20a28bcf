#include <Tests/Support/QtSynchronization.h>

#include <QApplication>
#include <QFont>
#include <QString>
#include <QStyleFactory>

#include <gtest/gtest.h>

namespace
{

// Messages that do not depend on the program: those of the offscreen platform, and those of Qt's sound plugin on a
// machine without a sound server.
bool IsThePlatforms(const QString& text)
{
    return text.startsWith(QLatin1String("This plugin does not support ")) ||
           text.startsWith(QLatin1String("PulseAudioService: "));
}

// An unexpected warning usually indicates a fault that no test checks for.
void FailOnWarning(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtDebugMsg || type == QtInfoMsg || IsThePlatforms(text)) {
        return;
    }
    ADD_FAILURE_AT(context.file != nullptr ? context.file : "(Qt)", context.line)
        << "Unexpected message of Qt: " << text.toStdString();
}

void PinEnvironment()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("QT_FONT_DPI", "96");
    qunsetenv("QT_STYLE_OVERRIDE");
    qunsetenv("QT_QPA_PLATFORMTHEME");
}

} // namespace

int main(int argc, char** argv)
{
    PinEnvironment();
    QtSynchronization::ApplicationFor<QApplication> application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("Noto Sans"));
    font.setPixelSize(13);
    QApplication::setFont(font);
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(&FailOnWarning);
    const int result = RUN_ALL_TESTS();
    qInstallMessageHandler(nullptr);
    return result;
}
