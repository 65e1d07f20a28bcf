#pragma once

#include <KxWidgets/KxFramelessDialog.h>

class KxLabel;
class KxPushButton;
class QTextBrowser;

/// Name, version, the libraries that run, and the licences of what others have written.
class AboutDialog : public KxFramelessDialog
{
    Q_OBJECT
public:
    /// `libraries` with their versions: "Qt 5.15.8".
    AboutDialog(const QStringList& libraries, QWidget* parent);
    ~AboutDialog() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void RetranslateUi() override;

private:
    void InitUi();
    void FitTables();

    const QStringList m_libraries;
    KxLabel* m_name = nullptr;
    KxLabel* m_purpose = nullptr;
    KxLabel* m_versions = nullptr;
    QTextBrowser* m_licences = nullptr;
    KxPushButton* m_close = nullptr;
};
