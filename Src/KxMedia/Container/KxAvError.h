#pragma once

#include <QString>

/// The reason behind a negative number that libav* returned, as the end of a sentence: "the disk is full". Never empty.
QString KxAvErrorText(int error);
