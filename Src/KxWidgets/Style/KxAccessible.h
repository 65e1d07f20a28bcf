#pragma once

/// Makes the widgets that Qt does not know accessible to screen readers: the slider's value, the switch's state.
namespace KxAccessible
{
/// A second call changes nothing.
void Install();
} // namespace KxAccessible
