#include <KxWidgets/KxMainFormMinimizeMessage.h>

KxMainFormMinimizeMessage::KxMainFormMinimizeMessage(int window)
    : m_window(window)
{
}

KxMainFormMinimizeMessage::~KxMainFormMinimizeMessage() = default;
