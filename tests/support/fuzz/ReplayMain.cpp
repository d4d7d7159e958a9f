#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size);

/// Runs a fuzz target once over every file of a corpus folder; an empty corpus is an error, because then
/// nothing was tried.
int main(int Count, char** Arguments)
{
    if (Count != 2) {
        std::fprintf(stderr, "usage: %s CORPUS-FOLDER\n", Arguments[0]);
        return 2;
    }
    int Replayed = 0;
    for (const auto& Entry : std::filesystem::directory_iterator(Arguments[1])) {
        std::ifstream File(Entry.path(), std::ios::binary);
        const std::vector<char> Bytes(std::istreambuf_iterator<char>(File), {});
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(Bytes.data()), Bytes.size());
        ++Replayed;
    }
    std::printf("%d inputs replayed\n", Replayed);
    return Replayed == 0;
}
