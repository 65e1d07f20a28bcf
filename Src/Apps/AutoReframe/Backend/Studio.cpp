#include <Apps/AutoReframe/Backend/Studio.h>

StudioItem::~StudioItem() = default;
ExportSource::~ExportSource() = default;
RenderTask::~RenderTask() = default;
Studio::~Studio() = default;
