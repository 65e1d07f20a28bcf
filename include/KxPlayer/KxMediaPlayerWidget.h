#pragma once

#include <KxWidgets/KxWidget.h>

class KxMediaPlayerPresenter;

/// Shows the pictures of a player, fitted into its area. If a picture cannot be shown, it shows the presenter's error
/// message instead (see KxMediaPlayerPresenter::sigFailed), until the next picture. Made by the factory only.
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
    QString Failure() const;
    void HandlePictureChanged();

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
