#pragma once

#include <KxCore/KxExport.h>

#include <QObject>

/// A message from one part of the program to a window's scene.
class KXWIDGETS_API KxSceneMessage
{
public:
    virtual ~KxSceneMessage();

protected:
    KxSceneMessage() = default;
    Q_DISABLE_COPY_MOVE(KxSceneMessage)
};

/// The object behind a window that handles the messages sent to it. User-interface thread.
class KXWIDGETS_API KxScene : public QObject
{
    Q_OBJECT
public:
    explicit KxScene(QObject* parent);
    ~KxScene() override;

    /// Returns false for a message that the scene does not know.
    virtual bool HandleMessage(const KxSceneMessage& message) = 0;
};

namespace KxUIView
{
/// Delivers `message` at once and returns the scene's answer; false if `scene` is null.
KXWIDGETS_API bool sendMessageToScene(KxScene* scene, const KxSceneMessage& message);
} // namespace KxUIView
