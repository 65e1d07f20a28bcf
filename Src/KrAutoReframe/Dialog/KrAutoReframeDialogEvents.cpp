#include <KrAutoReframe/KrAutoReframeDialog.h>

#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>

#include <KxWidgets/KrMessageDialog.h>

#include <QCloseEvent>
#include <QFileInfo>
#include <QKeyEvent>

bool KrAutoReframeDialog::AskToExit(const QString& refuseText)
{
    // "AutoReframe_Exit" is a key; the translation files contain the text.
    return KrMessageDialog::Question_CustomYesNo(tr("Are you sure you want to exit?"), refuseText,
                                                 tr("AutoReframe_Exit"), this, KrStandardButton::No, QString(),
                                                 tr("Auto Reframe"), KrMessageType::Question);
}

void KrAutoReframeDialog::closeEvent(QCloseEvent* event)
{
    if (!HasSource()) {
        QDialog::closeEvent(event);
        return;
    }
    if (!AskToExit(tr("Cancel"))) {
        event->ignore();
        return;
    }
    m_playerView->close();
    QDialog::closeEvent(event);
}

void KrAutoReframeDialog::keyPressEvent(QKeyEvent* event)
{
    const bool asks = event->key() == Qt::Key_Escape && HasSource();
    // The refusing button is labelled "No" here and "Cancel" after a click on the title bar's close button.
    if (asks && !AskToExit(tr("No"))) {
        event->ignore();
        return;
    }
    event->accept();
    if (asks) {
        m_playerView->close();
    }
    KxDialog::keyPressEvent(event);
    // The base closes on Escape without modifiers only, but the user has agreed to exit.
    if (asks && isVisible()) {
        reject();
    }
}

void KrAutoReframeDialog::moveEvent(QMoveEvent* event)
{
    if (m_playerView != nullptr) {
        m_playerView->UpdateOverlayGeometry();
    }
    QWidget::moveEvent(event);
}

void KrAutoReframeDialog::resizeEvent(QResizeEvent* event)
{
    UpdateProjectName(QFileInfo(m_sourcePath).fileName());
    KxDialog::resizeEvent(event);
}
