#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <KrAutoReframe/KrAutoReframeExtensions.h>

/// Turns the dialog's extensions on, and passes what the person decides and how exports are getting on between dialog
/// and program.
class DialogEdits final : public KrAutoReframeExtensions, public KrAutoReframeExports, public KrAutoReframeHelp
{
public:
    /// `callbacks` is borrowed.
    explicit DialogEdits(const DialogCallbacks& callbacks);

    KrAutoReframeState LoadState(const QString& path) override;
    void OnStateChanged(const QString& path, const KrAutoReframeState& state) override;
    void ListenToExports(const Listener& listener) override;
    void ShowInFolder(const QString& filePath) override;
    void ShowHelp(QWidget& dialog) override;

private:
    const DialogCallbacks& m_callbacks;
    /// Of the first video: the person may open others in the dialog.
    bool m_startsAtDoubtfulShot;
};
