#include <KxPlayer/KxSoundDevice.h>

KxSoundDevice::~KxSoundDevice() = default;
