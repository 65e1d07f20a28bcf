#include <QWidget>
#include <opencv2/core.hpp>
