#include <KxPlayer/KxMediaPlayerWidget.h>

#include <KxPlayer/KxErrorText.h>
#include <KxPlayer/KxMediaPlayerPresenterImpl.h>

#include <KxWidgets/KxToolTipHelper.h>

#include <QPaintEvent>
#include <QPainter>

IKxMediaPlayerFactory::~IKxMediaPlayerFactory() = default;

namespace
{

class Factory final : public IKxMediaPlayerFactory
{
public:
    KxMediaPlayerWidget* createPlayerWidget(QWidget* parent) override { return new KxMediaPlayerWidget(parent); }
};

QSize DeviceSize(const QWidget& widget)
{
    return (QSizeF(widget.size()) * widget.devicePixelRatioF()).toSize();
}

QRectF Logical(const QRect& devicePixels, qreal ratio)
{
    return {QPointF(devicePixels.topLeft()) / ratio, QSizeF(devicePixels.size()) / ratio};
}

} // namespace

IKxMediaPlayerFactory* mediaPlayerFactory()
{
    static Factory factory;
    return &factory;
}

KxMediaPlayerWidget::KxMediaPlayerWidget(QWidget* parent)
    : KxWidget(parent)
{
    setObjectName(QStringLiteral("KxMediaPlayerWidget"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

KxMediaPlayerWidget::~KxMediaPlayerWidget()
{
    delete m_presenter;
}

KxMediaPlayerPresenter* KxMediaPlayerWidget::getOrCreatePresenter()
{
    if (m_presenter == nullptr) {
        m_presenter = new KxMediaPlayerPresenter(this);
        m_presenter->m_impl->SetArea(DeviceSize(*this), devicePixelRatioF());
        connect(&m_presenter->m_impl->playback, &KxPlayback::sigPictureChanged, this,
                &KxMediaPlayerWidget::HandlePictureChanged);
    }
    return m_presenter;
}

QString KxMediaPlayerWidget::Failure() const
{
    return m_presenter != nullptr ? m_presenter->m_impl->playback.Failure().value_or(QString()) : QString();
}

void KxMediaPlayerWidget::HandlePictureChanged()
{
    const QString failure = Failure();
    setAccessibleDescription(failure);
    // The painted message may be shortened.
    setToolTip(KxToolTipHelper::AsPlainText(failure));
    update();
}

void KxMediaPlayerWidget::paintEvent(QPaintEvent* event)
{
    KxWidget::paintEvent(event);
    if (m_presenter == nullptr) {
        return;
    }
    KxMediaPlayerPresenter::Impl& player = *m_presenter->m_impl;
    // The pixel ratio changes without a resize when the window moves to another screen.
    player.SetArea(DeviceSize(*this), devicePixelRatioF());
    if (const std::optional<KxPlayerPicture>& picture = player.playback.Picture()) {
        const QRect place = player.PicturePlace();
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform, picture->image.size() != place.size());
        painter.drawImage(Logical(place, devicePixelRatioF()), picture->image, QRectF(picture->image.rect()));
    } else if (const QString failure = Failure(); !failure.isEmpty()) {
        QPainter painter(this);
        KxErrorText::Paint(painter, rect(), failure);
    }
}

void KxMediaPlayerWidget::resizeEvent(QResizeEvent* event)
{
    KxWidget::resizeEvent(event);
    if (m_presenter != nullptr) {
        m_presenter->m_impl->SetArea(DeviceSize(*this), devicePixelRatioF());
    }
}
