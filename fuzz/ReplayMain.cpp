// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// Stands in for the fuzzer in builds without one: gives the target every file of the folders named on the
// command line. Ends with status 1 if a folder holds none.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

int replay(const char* folder)
{
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        std::printf("%s\n", entry.path().filename().c_str());
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++count;
    }
    return count;
}

} // namespace

int main(int argc, char* argv[])
{
    bool found = argc > 1;
    for (int i = 1; i < argc; ++i)
        found = replay(argv[i]) > 0 && found;
    return found ? 0 : 1;
}
