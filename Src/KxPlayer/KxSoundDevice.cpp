#include "KxSoundDevice.h"

KxSoundDevice::~KxSoundDevice() = default;
