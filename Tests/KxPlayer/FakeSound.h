#pragma once

#include <KxPlayer/KxSoundDevice.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

/// What a fake sound device was given, and how much of it has been heard. For the thread of the audio output.
struct FakeSoundState {
    bool starts = true;
    bool isStarted = false;
    int capacity = 9600;
    std::vector<float> taken;
    int heardFrames = 0;
    /// How often the output asked for free frames, which it does after it has corrected the clock.
    mutable int looks = 0;
    /// Write() throws.
    bool throws = false;

    int WaitingFrames() const { return static_cast<int>(taken.size()) / KxSoundDevice::Channels - heardFrames; }
    /// The device plays `frames` more.
    void Hear(int frames) { heardFrames += std::min(frames, WaitingFrames()); }
};

class FakeSound final : public KxSoundDevice
{
public:
    explicit FakeSound(FakeSoundState& state)
        : m_state(state)
    {
    }

    bool Start() override
    {
        m_state.taken.clear();
        m_state.heardFrames = 0;
        m_state.isStarted = m_state.starts;
        return m_state.starts;
    }
    void Stop() override { m_state.isStarted = false; }
    int FreeFrames() const override
    {
        ++m_state.looks;
        return m_state.capacity - m_state.WaitingFrames();
    }
    int WaitingFrames() const override { return m_state.WaitingFrames(); }
    int Write(const float* samples, int frames) override
    {
        if (m_state.throws) {
            throw std::runtime_error("the device broke");
        }
        m_state.taken.insert(m_state.taken.end(), samples, samples + static_cast<std::ptrdiff_t>(frames) * Channels);
        return frames;
    }

private:
    FakeSoundState& m_state;
};
