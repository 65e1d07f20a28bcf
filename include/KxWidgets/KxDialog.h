#pragma once

#include <KxCore/KxExport.h>

#include <QDialog>

/// The host's dialog. Keys work as in QDialog: Escape rejects it, and Return presses the button that has the focus or
/// is the default one.
class KXWIDGETS_API KxDialog : public QDialog
{
    Q_OBJECT
public:
    explicit KxDialog(QWidget* parent = nullptr);
    ~KxDialog() override;

    /// Runs the dialog modally and returns its result: 1 accepted, 0 rejected.
    int DoModal();

protected:
    /// Called after a change of language; a derived class sets its texts here.
    virtual void RetranslateUi();
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};
