#pragma once

#include <KxCore/KxExport.h>

#include <functional>
#include <memory>

/// Where sound goes: 48 kHz, two channels, interleaved floats. A frame is one sample of each channel. Lives on the
/// thread that made it, which has an event loop.
class KXPLAYER_API KxSoundDevice
{
public:
    static constexpr int SampleRateHz = 48000;
    static constexpr int Channels = 2;

    /// Null on a machine that has no such device.
    using Factory = std::function<std::unique_ptr<KxSoundDevice>()>;

    virtual ~KxSoundDevice();

    /// Makes the device ready to take sound; false when it cannot be opened now.
    virtual bool Start() = 0;
    /// Drops what was not heard yet.
    virtual void Stop() = 0;
    /// Frames that Write takes without waiting.
    virtual int FreeFrames() const = 0;
    /// Frames that were written and not heard yet.
    virtual int WaitingFrames() const = 0;
    /// Returns how many frames were taken.
    virtual int Write(const float* samples, int frames) = 0;
};
