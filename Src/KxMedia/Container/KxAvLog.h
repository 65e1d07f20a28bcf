#pragma once

/// From the first call on, what libav* has to say about a file goes to the log instead of to the terminal: a damaged
/// file that is read all the same is no error of the program. Any thread.
void KxRouteAvLog();
