#pragma once

/// What becomes of pictures in high dynamic range (PQ, HLG) that are written.
enum class KxHighRange {
    ToneMapped, ///< to BT.709, 8 bits
    Kept        ///< all pictures get 10 bits, and keep their colour tags
};
