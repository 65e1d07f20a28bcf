#pragma once

#include <KxWidgets/KxToolButton.h>

#include <QStringList>

/// A tool button with two faces, such as play and pause; each face has its own tooltip.
class KXWIDGETS_API KxSwitchToolButton : public KxToolButton
{
    Q_OBJECT
    Q_PROPERTY(int face READ Face)
public:
    static KxSwitchToolButton* CreateSwitchToolButton(QWidget* parent, const QString& name);
    ~KxSwitchToolButton() override;

    /// Sets one tooltip for each face, in the order of the faces.
    void AddTips(const QStringList& tips);
    /// `face` is 0 or 1. The style sheet distinguishes the faces by the property "face".
    void SetFace(int face);
    int Face() const { return m_face; }

private:
    explicit KxSwitchToolButton(QWidget* parent);
    void ShowTip();

    QStringList m_tips;
    int m_face = 0;
};
