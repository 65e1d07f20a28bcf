// Decodes a file as the analysis does, without analysing it:
//   BenchScan CLIP
// Prints one line of JSON. The additional time of `reframe --no-video` is the analysis itself.

#include <KxMedia/Read/KxVideoScanner.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("Usage: BenchScan CLIP\n", stderr);
        return 2;
    }
    const KxResult<std::unique_ptr<KxVideoScanner>> scanner = KxVideoScanner::Open(arguments[1], KxCancelToken());
    if (!scanner) {
        std::fprintf(stderr, "%s\n", qPrintable(scanner.Message()));
        return 1;
    }
    qint64 pictures = 0;
    KxVideoFrame picture;
    while ((*scanner)->Next(picture) == KxReadStatus::Delivered) {
        ++pictures;
    }
    std::printf("{\"frames\":%lld,\"pictures\":%lld}\n", static_cast<long long>((*scanner)->Facts().video->frameCount),
                static_cast<long long>(pictures));
    return 0;
}
