#pragma once

/// How closely the crop follows its subject.
enum class KxMotionSpeed { Auto, Fast, Slow };
