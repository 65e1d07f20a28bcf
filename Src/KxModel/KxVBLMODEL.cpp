#include <KxModel/KxVBLMODEL.h>

#include <cmath>

KxProjectFrameRateType KxVBLMODEL::toFrameRateType(const KxRational& rate)
{
    struct Kind {
        double framesPerSecond;
        KxProjectFrameRateType type;
    };
    static constexpr Kind Kinds[] = {
        {24000.0 / 1001.0, KxProjectFrameRateType::Fps23_976},
        {24.0, KxProjectFrameRateType::Fps24},
        {25.0, KxProjectFrameRateType::Fps25},
        {30000.0 / 1001.0, KxProjectFrameRateType::Fps29_97},
        {30.0, KxProjectFrameRateType::Fps30},
        {50.0, KxProjectFrameRateType::Fps50},
        {60000.0 / 1001.0, KxProjectFrameRateType::Fps59_94},
        {60.0, KxProjectFrameRateType::Fps60},
    };
    constexpr double tolerance = 0.01;
    for (const Kind& kind : Kinds) {
        if (std::abs(rate.ToDouble() - kind.framesPerSecond) <= tolerance) {
            return kind.type;
        }
    }
    return KxProjectFrameRateType::Custom;
}

KxProjectAspectRatioType KxVBLMODEL::toAspectRatioType(const QSize& size)
{
    struct Kind {
        int width;
        int height;
        KxProjectAspectRatioType type;
    };
    static constexpr Kind Kinds[] = {
        {16, 9, KxProjectAspectRatio16x9}, {9, 16, KxProjectAspectRatio9x16}, {1, 1, KxProjectAspectRatio1x1},
        {4, 3, KxProjectAspectRatio4x3},   {21, 9, KxProjectAspectRatio21x9},
    };
    if (size.isEmpty()) {
        return KxProjectAspectRatioUnknown;
    }
    for (const Kind& kind : Kinds) {
        if (qint64(size.width()) * kind.height == qint64(size.height()) * kind.width) {
            return kind.type;
        }
    }
    return KxProjectAspectRatioUnknown;
}
