#pragma once

#include <KxWidgets/KxFileDialog.h>
#include <KxWidgets/KxFramelessDialog.h>

#include <QFileIconProvider>

/// The style's icons for files and folders.
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

    /// In the form that KxFileFilter::ToQt() returns.
    void SetFilter(const QString& filter);
    /// Without a check every file is accepted.
    void SetFileCheck(KxFileDialog::FileCheck check);
    /// Empty unless the person accepted a choice.
    QStringList Chosen() const;

private:
    class Chooser;

    void StyleButtons();
    void StyleLists();

    KxFileIcons m_icons;
    Chooser* m_chooser = nullptr;
};
