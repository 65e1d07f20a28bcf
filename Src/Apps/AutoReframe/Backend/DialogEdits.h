#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <KrAutoReframe/KrAutoReframeExtensions.h>

/// Turns the dialog's extensions on, and passes what the person decides and how exports are getting on between dialog
/// and program. The chosen output is kept in the configuration file.
class DialogEdits final : public KrAutoReframeExtensions,
                          public KrAutoReframeExports,
                          public KrAutoReframeOutputs,
                          public KrAutoReframeHelp
{
public:
    /// `callbacks` is borrowed.
    explicit DialogEdits(const DialogCallbacks& callbacks);

    /// The size to write what the dialog exports as `cropSize`.
    QSize SizeFor(const QSize& cropSize) const;

    KrAutoReframeState LoadState(const QString& path) override;
    void OnStateChanged(const QString& path, const KrAutoReframeState& state) override;
    void ListenToExports(const Listener& listener) override;
    void ShowInFolder(const QString& filePath) override;
    void ShowHelp(QWidget& dialog) override;
    QList<KrAutoReframeOutput> OutputsFor(const QSizeF& crop, const QSize& cropSize) override;
    int ChosenOutput() const override;
    void ChooseOutput(int index) override;

private:
    QSizeF m_crop; ///< of the result that the dialog shows
    QSize m_cropSize;
    const DialogCallbacks& m_callbacks;
    /// Of the first video: the person may open others in the dialog.
    bool m_startsAtDoubtfulShot;
    std::shared_ptr<const CropTrack> m_track;
    /// The video that is shown with the crops of a track, whose edits are not saved.
    QString m_pathWithTrack;
};
