#pragma once

/// How one step of reading ended.
enum class KxReadStatus {
    Delivered, ///< a packet, a picture or a run of sound was delivered
    End,       ///< nothing (more) to decode
    Cancelled, ///< the cancel token was set, or the read was abandoned
    Failed,    ///< the file cannot be read any further
};
