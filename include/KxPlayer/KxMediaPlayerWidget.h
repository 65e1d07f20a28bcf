#pragma once

#include <KxWidgets/KxWidget.h>

class KxMediaPlayerPresenter;

/// Shows the pictures of a player, fitted into its area. Made by the factory alone.
class KXPLAYER_API KxMediaPlayerWidget : public KxWidget
{
    Q_OBJECT
public:
    explicit KxMediaPlayerWidget(QWidget* parent);
    ~KxMediaPlayerWidget() override;

    /// The widget owns it; never null.
    KxMediaPlayerPresenter* getOrCreatePresenter();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    KxMediaPlayerPresenter* m_presenter = nullptr;
};

/// Makes player widgets.
class KXPLAYER_API IKxMediaPlayerFactory
{
public:
    /// The parent owns the widget.
    virtual KxMediaPlayerWidget* createPlayerWidget(QWidget* parent) = 0;

protected:
    virtual ~IKxMediaPlayerFactory();
};

/// Never null.
KXPLAYER_API IKxMediaPlayerFactory* mediaPlayerFactory();
