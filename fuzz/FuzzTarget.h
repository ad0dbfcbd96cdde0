#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// What a fuzz target defines.

/// Feeds one input to the code under test. A fault is whatever stops the program: a sanitizer's report or
/// abort() when a promise is broken. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Inputs of every form that the code takes; the search starts from these. At least one.
std::vector<std::string> seedCorpus();

/// Pieces that chance would hardly make, such as keywords; may be empty.
std::vector<std::string> fuzzDictionary();
