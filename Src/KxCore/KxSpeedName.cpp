#include <KxCore/KxSpeedName.h>

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace
{

struct Speed {
    int number;
    QLatin1String name;
};

const std::array Speeds{Speed{16, QLatin1String("auto")}, Speed{8, QLatin1String("fast")},
                        Speed{24, QLatin1String("slow")}};

} // namespace

QString KxSpeedName::Of(int speed)
{
    const auto found =
        std::find_if(Speeds.begin(), Speeds.end(), [speed](const Speed& known) { return known.number == speed; });
    return found != Speeds.end() ? found->name : Speeds.front().name;
}

std::optional<int> KxSpeedName::Find(const QString& name)
{
    const auto found =
        std::find_if(Speeds.begin(), Speeds.end(), [&name](const Speed& known) { return known.name == name; });
    return found != Speeds.end() ? std::optional<int>(found->number) : std::nullopt;
}
