#pragma once

#include <KxCore/KxRational.h>
#include <KxModel/IKxAutoReframeResult.h>

#include <KxSubject/KxSubjectFindings.h>

#include <QImage>
#include <QList>

#include <memory>

class QPainter;

/// Draws the crop and its reasons on every frame of a video: the crop with its surroundings dimmed, a triangle at the
/// picture's edge at the centre with the most evidence, and in the lower left corner the shot, the frame, its time and
/// the strength of each signal. Without findings, only the crop, the frame and its time. Any thread.
class PreviewOverlay
{
public:
    /// `crops` holds one entry a frame; `findings` may be null. Needs a QGuiApplication, for fonts.
    PreviewOverlay(QList<IKxAutoReframeResult> crops, const KxRational& frameRate,
                   std::shared_ptr<const KxSubjectFindings> findings);

    void Draw(QImage& picture, qint64 frame) const;

private:
    void DrawWanted(QPainter& painter, const QSizeF& picture, qint64 frame) const;
    void DrawPanel(QPainter& painter, const QSizeF& picture, qint64 frame) const;
    void DrawSignals(QPainter& painter, const QRectF& area, qint64 frame) const;

    QList<IKxAutoReframeResult> m_crops;
    KxRational m_frameRate;
    std::shared_ptr<const KxSubjectFindings> m_findings;
    float m_strongest = 1e-6F; ///< the strongest signal of all samples
};
