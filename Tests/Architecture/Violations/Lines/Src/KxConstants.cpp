constexpr int mostCells = 12;

class KxConstants
{
    static constexpr double stepPx = 4.0;
    static constexpr double StepSeconds = 4.0;
};

int KxMostRows()
{
    constexpr int Rows = 3;
    constexpr int columns = 3;
    static constexpr int Planes = 3;
    return Rows * columns * Planes;
}
