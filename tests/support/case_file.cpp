#include "support/case_file.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace QZCore::testing {
namespace {

void loadFile(const std::filesystem::path& path, std::vector<Case>& cases) {
    std::ifstream file(path);
    std::string line;
    std::size_t number = 0;
    const std::size_t casesBefore = cases.size();
    bool inExpected = false;
    while (std::getline(file, line)) {
        ++number;
        if (line.starts_with("=== ")) {
            const std::string where = path.filename().string() + ":" + std::to_string(number);
            cases.push_back({where, line.substr(4), "", "", ""});
            inExpected = false;
            continue;
        }
        if (cases.size() == casesBefore) continue;  // an introduction
        Case& row = cases.back();
        if (line == "---" && !inExpected) {
            inExpected = true;
            if (!row.input.empty()) row.input.pop_back();
        } else if (inExpected) {
            if (!line.empty()) row.expected += line + "\n";
        } else if (row.input.empty() && row.settings.empty() && line.starts_with("{")) {
            row.settings = line;
        } else {
            row.input += line + "\n";
        }
    }
    REQUIRE_MESSAGE(inExpected, path.string());
}

}  // namespace

std::vector<Case> loadCases(const std::string& folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".txt") paths.push_back(entry.path());
    }
    std::ranges::sort(paths);
    std::vector<Case> cases;
    for (const auto& path : paths) loadFile(path, cases);
    REQUIRE(!cases.empty());
    return cases;
}

}  // namespace QZCore::testing
