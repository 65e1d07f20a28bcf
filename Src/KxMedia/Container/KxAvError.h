#pragma once

#include <QString>

/// The reason behind a negative number that libav* returned, as a clause to append to a message: "the disk is full".
/// Never empty.
QString KxAvErrorText(int error);
