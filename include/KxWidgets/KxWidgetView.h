#pragma once

#include <KxWidgets/KxWidget.h>

class KxScene;

/// A main window of the host. Its scene minimises it when it receives a KxMainFormMinimizeMessage.
class KXWIDGETS_API KxWidgetView : public KxWidget
{
    Q_OBJECT
public:
    explicit KxWidgetView(QWidget* parent = nullptr);
    ~KxWidgetView() override;

    /// Owned by the view; never null.
    KxScene* scene() const;

private:
    KxScene* m_scene = nullptr;
};
