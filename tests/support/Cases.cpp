#include "support/Cases.h"

#include <algorithm>
#include <filesystem>

namespace ls::test {

std::vector<std::string> CaseNames(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(CasePath(folder, ""))) {
        if (entry.path().extension() == ".json") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string CasePath(const std::string& folder, const std::string& name)
{
    return LS_TEST_DATA "/" + folder + "/" + name;
}

std::string CaseTestName(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

} // namespace ls::test
