#pragma once

#include <KxCore/KxExport.h>

#include <QSize>

/// The parameters of one task of the auto-reframe service. A plain record, copied by the service when the task starts.
class KXMODEL_API IKxAutoReframeParam
{
public:
    /// `mode` is the motion speed: 8 follows closely, 24 calmly, 16 is in between. `targetSize` is the wanted aspect
    /// ratio as whole numbers (9 x 16, or a size in pixels of that ratio).
    IKxAutoReframeParam(int mode, const QSize& targetSize);
    ~IKxAutoReframeParam();

    int mode() const { return m_mode; }
    const QSize& targetSize() const { return m_targetSize; }

private:
    int m_mode;
    QSize m_targetSize;
};
