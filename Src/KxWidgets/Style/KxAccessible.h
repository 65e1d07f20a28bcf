#pragma once

/// What screen readers are told of the widgets that Qt does not know: the slider's value, the switch's state.
namespace KxAccessible
{
/// A second call changes nothing.
void Install();
} // namespace KxAccessible
