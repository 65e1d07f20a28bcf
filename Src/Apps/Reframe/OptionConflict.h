#pragma once

#include <QString>

struct ReframeOptions;

/// The message about options that exclude each other or do not fit the inputs; empty if there are none.
QString OptionConflict(const ReframeOptions& options);
