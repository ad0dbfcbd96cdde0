#include "fuzz/FuzzTarget.h"

#include <filesystem>
#include <fstream>

// libFuzzer keeps its corpus in a directory, the first on its command line; an empty one gets our seeds.
extern "C" int LLVMFuzzerInitialize(int* argumentCount, char*** arguments) {
    for (int i = 1; i < *argumentCount; ++i) {
        const std::filesystem::path directory = (*arguments)[i];
        if (!std::filesystem::is_directory(directory)) {
            continue;
        }
        if (std::filesystem::is_empty(directory)) {
            int number = 0;
            for (const std::string& seed : seedCorpus()) {
                std::ofstream(directory / ("seed-" + std::to_string(number++)), std::ios::binary) << seed;
            }
        }
        break;
    }
    return 0;
}
