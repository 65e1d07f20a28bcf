#include <QApplication>
#include <QFont>
#include <QStyleFactory>

#include <gtest/gtest.h>

namespace
{

// A warning that nobody expected is a fault that nobody looked for.
void FailOnWarning(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // What the offscreen platform says of its own limits.
    const bool isOfPlatform = text.startsWith(QLatin1String("This plugin does not support "));
    if (type != QtDebugMsg && type != QtInfoMsg && !isOfPlatform) {
        ADD_FAILURE_AT(context.file != nullptr ? context.file : "(Qt)", context.line)
            << "Qt said: " << text.toStdString();
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_FONT_DPI", "96");
    qputenv("QT_SCALE_FACTOR", "1");
    QApplication application(argc, argv);
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
