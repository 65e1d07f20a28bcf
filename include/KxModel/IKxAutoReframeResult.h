#pragma once

#include <KxCore/KxExport.h>

#include <QRectF>

/// The crop of one frame. Lists of results are indexed by frame number.
class KXMODEL_API IKxAutoReframeResult
{
public:
    IKxAutoReframeResult();
    IKxAutoReframeResult(qint64 frame, const QRectF& cropRect);
    IKxAutoReframeResult(const IKxAutoReframeResult& other);
    IKxAutoReframeResult& operator=(const IKxAutoReframeResult& other);
    ~IKxAutoReframeResult();

    qint64 frame() const { return m_frame; }
    /// x and width as fractions of the picture's width, y and height as fractions of its height; 0..1 inside the
    /// picture.
    const QRectF& cropRect() const { return m_cropRect; }
    void setCropRect(const QRectF& cropRect) { m_cropRect = cropRect; }

private:
    qint64 m_frame = 0;
    QRectF m_cropRect;
};
