#include <KxWidgets/KxWidgetView.h>

#include <KxWidgets/KxMainFormMinimizeMessage.h>

namespace
{

class WindowScene : public KxScene
{
public:
    explicit WindowScene(QWidget& view)
        : KxScene(&view)
        , m_view(view)
    {
    }

    bool HandleMessage(const KxSceneMessage& message) override
    {
        const auto* minimize = dynamic_cast<const KxMainFormMinimizeMessage*>(&message);
        if (minimize == nullptr || minimize->Window() != 0) {
            return false;
        }
        m_view.window()->showMinimized();
        return true;
    }

private:
    QWidget& m_view;
};

} // namespace

KxWidgetView::KxWidgetView(QWidget* parent)
    : KxWidget(parent)
    , m_scene(new WindowScene(*this))
{
}

KxWidgetView::~KxWidgetView() = default;

KxScene* KxWidgetView::scene() const
{
    return m_scene;
}
