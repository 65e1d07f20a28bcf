#pragma once

#include <KxModel/IKxAutoReframeParam.h>
#include <KxModel/IKxAutoReframeResult.h>

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxResult.h>

#include <QList>

#include <functional>
#include <memory>

class KxVideoScanner;
struct KxSubjectFindings;

/// One analysis of one file, on the calling thread and one more: this thread decodes and shrinks pictures, the other
/// finds the subject in them, with a short queue between the two, so that memory does not grow with the file's length.
class KXMODEL_API KxVideoAnalysis
{
public:
    struct Result {
        KxOutcome outcome = KxOutcome::Failed;
        QList<IKxAutoReframeResult> crops;                 ///< one a frame; empty unless Done
        QString message;                                   ///< why it failed
        QStringList warnings;                              ///< what a person should know although it is Done
        std::shared_ptr<const KxSubjectFindings> findings; ///< null unless Done and wanted
    };

    /// Reads the file's header. The error message names the file and the reason.
    static KxResult<std::unique_ptr<KxVideoAnalysis>> Open(const QString& path, const IKxAutoReframeParam& param,
                                                           const QString& faceModelPath, const KxCancelToken& cancel);
    ~KxVideoAnalysis();

    /// Before Run(): its result shall tell what was found on the way to the crops.
    void WantFindings() { m_wantsFindings = true; }

    /// Blocks until the end. `onProgress` is called on this thread with 0 to 99, each number at most once. Call once.
    Result Run(const std::function<void(int percent)>& onProgress);

private:
    class Pipeline;
    KxVideoAnalysis(std::unique_ptr<KxVideoScanner> scanner, const IKxAutoReframeParam& param,
                    const QString& faceModelPath, const KxCancelToken& cancel);

    std::unique_ptr<KxVideoScanner> m_scanner;
    IKxAutoReframeParam m_param;
    QString m_faceModelPath;
    KxCancelToken m_cancel;
    bool m_wantsFindings = false;
};
