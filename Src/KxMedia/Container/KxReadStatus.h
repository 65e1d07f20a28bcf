#pragma once

/// How one step of reading ended.
enum class KxReadStatus {
    Picture,   ///< a picture was delivered
    End,       ///< nothing (more) to decode
    Cancelled, ///< the cancel token was set, or the read was given up
    Failed,    ///< the file cannot be read any further
};
