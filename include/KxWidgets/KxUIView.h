#pragma once

#include <KxCore/KxExport.h>

#include <QObject>

/// Something that one part of the program tells a window's scene.
class KXWIDGETS_API KxSceneMessage
{
public:
    virtual ~KxSceneMessage();

protected:
    KxSceneMessage() = default;
    Q_DISABLE_COPY_MOVE(KxSceneMessage)
};

/// What stands behind a window and acts on the messages sent to it. User-interface thread.
class KXWIDGETS_API KxScene : public QObject
{
    Q_OBJECT
public:
    explicit KxScene(QObject* parent);
    ~KxScene() override;

    /// False for a message that means nothing to this scene.
    virtual bool HandleMessage(const KxSceneMessage& message) = 0;
};

namespace KxUIView
{
/// Delivers `message` at once; what the scene answers. False where `scene` is null.
KXWIDGETS_API bool sendMessageToScene(KxScene* scene, const KxSceneMessage& message);
} // namespace KxUIView
