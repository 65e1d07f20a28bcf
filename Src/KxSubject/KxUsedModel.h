#pragma once

#include <string>

/// The file of a neural network that an analysis ran on, for its record.
struct KxUsedModel {
    std::string name;   ///< of its file
    std::string sha256; ///< of its contents, 64 hexadecimal digits
};
