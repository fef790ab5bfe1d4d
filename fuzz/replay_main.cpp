// Runs kept inputs through a fuzz entry point, with any compiler: every file
// of the folders that are named on the command line.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void replay(const std::filesystem::path& file) {
    std::printf("%s\n", file.c_str());
    std::fflush(stdout);  // the last name shown is the input that failed
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(stream), {});
    // A block of exactly this size: a read one past the end leaves it.
    const auto block = std::make_unique<std::uint8_t[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), block.get());
    LLVMFuzzerTestOneInput(block.get(), bytes.size());
}

}  // namespace

int main(int count, char** folders) {
    std::size_t inputs = 0;
    for (int i = 1; i < count; ++i) {
        for (const auto& entry : std::filesystem::directory_iterator(folders[i])) {
            replay(entry.path());
            ++inputs;
        }
    }
    return inputs == 0 ? 1 : 0;
}
