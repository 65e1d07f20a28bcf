#include <Apps/AutoReframe/Backend/MediaBackend.h>

MediaTask::~MediaTask() = default;
MediaBackend::~MediaBackend() = default;
