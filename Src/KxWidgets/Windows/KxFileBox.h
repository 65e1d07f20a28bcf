#pragma once

#include <KxWidgets/KxFramelessDialog.h>

#include <QFileIconProvider>

class QFileDialog;

/// Icons of the style's family for files and folders.
class KxFileIcons : public QFileIconProvider
{
public:
    KxFileIcons();
    ~KxFileIcons() override;

    QIcon icon(IconType type) const override;
    QIcon icon(const QFileInfo& info) const override;
};

/// A file chooser in the host's look.
class KxFileBox : public KxFramelessDialog
{
    Q_OBJECT
public:
    enum class Picks { Files, Folder };

    KxFileBox(Picks picks, const QString& caption, const QString& folder, QWidget* parent);
    ~KxFileBox() override;

    /// As KxFileFilter::ToQt() gives it.
    void SetFilter(const QString& filter);
    QStringList Chosen() const;

private:
    void DressButtons();
    void DressLists();

    KxFileIcons m_icons;
    QFileDialog* m_chooser = nullptr;
};
