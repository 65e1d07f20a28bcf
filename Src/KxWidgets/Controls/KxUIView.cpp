#include <KxWidgets/KxUIView.h>

KxSceneMessage::~KxSceneMessage() = default;

KxScene::KxScene(QObject* parent)
    : QObject(parent)
{
}

KxScene::~KxScene() = default;

bool KxUIView::sendMessageToScene(KxScene* scene, const KxSceneMessage& message)
{
    return scene != nullptr && scene->HandleMessage(message);
}
