#include <KxSubject/Signals/KxCascadeFiles.h>

#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace
{

#if defined(_WIN32)
constexpr char ListSeparator = ';';
#else
constexpr char ListSeparator = ':';
#endif

} // namespace

std::vector<std::string> KxCascadeFolders()
{
    std::vector<std::string> folders;
    if (const char* named = std::getenv("KX_CASCADES")) {
        std::istringstream list(named);
        for (std::string folder; std::getline(list, folder, ListSeparator);) {
            if (!folder.empty()) {
                folders.push_back(folder);
            }
        }
    }
#if defined(KX_CASCADE_FOLDER)
    folders.emplace_back(KX_CASCADE_FOLDER);
#endif
    std::error_code problem;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", problem);
    if (!problem) {
        const std::filesystem::path share = program.parent_path().parent_path() / "share";
        for (const char* folder : {"opencv4/haarcascades", "opencv4/lbpcascades", "haarcascades"}) {
            folders.push_back((share / folder).string());
        }
    }
    return folders;
}

std::optional<std::string> KxFindCascade(const std::string& fileName)
{
    for (const std::string& folder : KxCascadeFolders()) {
        std::error_code problem;
        const std::filesystem::path path = std::filesystem::path(folder) / fileName;
        if (std::filesystem::is_regular_file(path, problem)) {
            return path.string();
        }
    }
    return std::nullopt;
}
