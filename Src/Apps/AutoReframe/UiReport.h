#pragma once

#include <QObject>

#include <memory>

class QJsonObject;
class QWidget;

/// Says again and again where every visible control stands on the screen and what it shows, for programs that work the
/// mouse and the keyboard in a person's place. User-interface thread.
///
/// The report is a JSON object: "serial" counts the reports, "window" and "focus" name the active window and the
/// control with the focus, "widgets" lists the controls with "name", "class", "window", "rect" [x, y, width, height] in
/// device pixels of the screen, "enabled" and, where they have them, "text", "value", "checked", "face" and "items".
class UiReport : public QObject
{
    Q_OBJECT
public:
    /// Nothing unless the environment variable KR_UI_REPORT names a file to write to.
    static std::unique_ptr<UiReport> MakeIfWanted();
    ~UiReport() override;

    /// What the report says now.
    QJsonObject Describe() const;

private:
    explicit UiReport(const QString& filePath);
    void Write();

    const QString m_filePath;
    int m_serial = 0;
};
