// Measures one paint of the crop overlay while it is dragged over a player of 1920 x 1080 pixels.

#include <KrAutoReframe/Player/ShadowForm.h>

#include <QApplication>
#include <QLabel>

#include <benchmark/benchmark.h>

namespace
{

struct Overlay {
    Overlay()
    {
        form.GetPictureLabel()->setFixedSize(1920, 1080);
        form.setFixedSize(1920, 1080);
        form.show();
        QApplication::processEvents();
    }

    QWidget view;
    ShadowForm form{&view};
    int step = 0;
};

/// Each repetition is one more step of the drag, so that the median over repetitions is that over steps.
void RepaintWhileDragged(benchmark::State& state)
{
    static Overlay* const overlay = new Overlay;
    overlay->form.SetCropRect(QRectF(0.3 + 0.001 * (overlay->step++ % 300), 0.0, 0.31640625, 1.0));
    for (auto _ : state) {
        overlay->form.repaint();
    }
}
BENCHMARK(RepaintWhileDragged)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(301)->ReportAggregatesOnly();

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
