#pragma once

#include <KxCore/KxExport.h>

#include <functional>
#include <memory>

/// A device that plays sound: 48 kHz, two channels, interleaved floats. A frame is one sample of each channel. Lives on
/// the thread that made it, which has an event loop.
class KXPLAYER_API KxSoundDevice
{
public:
    static constexpr int SampleRateHz = 48000;
    static constexpr int Channels = 2;

    /// Returns null on a machine without a device.
    using Factory = std::function<std::unique_ptr<KxSoundDevice>()>;

    virtual ~KxSoundDevice();

    /// Makes the device ready for sound; false if it cannot be opened now.
    virtual bool Start() = 0;
    /// Drops what has not been heard yet.
    virtual void Stop() = 0;
    /// How many frames Write() takes without waiting.
    virtual int FreeFrames() const = 0;
    /// How many frames were written but not heard yet.
    virtual int WaitingFrames() const = 0;
    /// Returns how many frames were taken.
    virtual int Write(const float* samples, int frames) = 0;
};
