#include <Apps/AutoReframe/Backend/MediaBackend.h>

RenderTask::~RenderTask() = default;
MediaBackend::~MediaBackend() = default;
