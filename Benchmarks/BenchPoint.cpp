// What a click points at:
//   BenchPoint CLIP RECORD
//       RECORD is one of BenchDecide. For each line of the standard input (FRAME,X,Y; fractions of the picture) prints
//       the guessed box (left, top, width, height) and 1 if it is taken for background, otherwise 0.

#include <KxModel/KxPointedPicture.h>
#include <KxSubject/KxSubjectRecordFormat.h>

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile file(arguments.value(2));
    const std::optional<KxSubjectRecord> record =
        file.open(QIODevice::ReadOnly) ? KxSubjectRecordFormat::Read(file.readAll().toStdString()) : std::nullopt;
    if (!record) {
        std::fputs("Usage: BenchPoint CLIP RECORD\n", stderr);
        return 1;
    }
    QTextStream input(stdin);
    for (QString line; input.readLineInto(&line);) {
        const QStringList numbers = line.split(QLatin1Char(','));
        const QPointF point(numbers.value(1).toDouble(), numbers.value(2).toDouble());
        const KxAutoReframeGuess guess =
            KxPointedPicture::GuessAt(arguments[1], numbers.value(0).toLongLong(), point, &*record);
        std::printf("%.6f %.6f %.6f %.6f %d\n", guess.box.x(), guess.box.y(), guess.box.width(), guess.box.height(),
                    guess.isBackground ? 1 : 0);
    }
    return 0;
}
