#pragma once

#include <QString>

/// The reason for a negative libav* error code, as a clause to append to a message: "the disk is full". Never empty.
QString KxAvErrorText(int error);
