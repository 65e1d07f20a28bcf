#pragma once

#include <QObject>

class QJsonObject;

/// Reports ten times a second where every visible control is on the screen and what it shows, for scripts that use
/// mouse and keyboard in a person's place. A program that links this file writes the report to the file that the
/// environment variable KR_UI_REPORT names, and none without it. User-interface thread.
///
/// The report is a JSON object: "serial" counts the reports, "platform" is Qt's, "window" and "focus" name the active
/// window and the control with the focus, "widgets" lists the controls with "name", "class", "window", "rect" [x, y,
/// width, height] in device pixels of the screen, "enabled" and, where they have them, "text", "value", "checked",
/// "face" and "items". For a window, "top" names the window that is above all others in its middle.
class UiReport : public QObject
{
    Q_OBJECT
public:
    UiReport(const QString& filePath, QObject* parent);
    ~UiReport() override;

private:
    QJsonObject Describe() const;
    void Write();

    const QString m_filePath;
    int m_serial = 0;
};
