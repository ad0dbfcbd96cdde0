// Feeds a fuzz target with mutations of its seeds where the compiler brings no fuzzer of its own.
//
//   <Name>Fuzz [--seconds N] [--seed N]   search for N seconds; one seed always gives the same inputs
//   <Name>Fuzz FILE...                    feed these files, as to look into a fault again
//
// Without --seconds, FUZZ_SECONDS is taken, else 5. An input that stops the program, or takes
// longer than kHangSeconds, is left in the current folder as a file whose name is printed.

#include "fuzz/FuzzTarget.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

constexpr std::size_t kLongestInput = 1 << 16;
constexpr std::size_t kLargestCorpus = 2000;
constexpr unsigned kHangSeconds = 20;

// ---- What is left of an input that stopped the program. No allocation: the heap may be what broke.

std::string s_currentInput;
std::string s_faultFile;

void printText(std::string_view text) {
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, text.data(), text.size());
}

void saveCurrentInput() {
    const int file = ::open(s_faultFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (file < 0) {
        return;
    }
    [[maybe_unused]] const ssize_t written = ::write(file, s_currentInput.data(), s_currentInput.size());
    ::close(file);
    printText("The input is in ");
    printText(s_faultFile);
    printText("\n");
}

} // namespace

// The runtime of undefined behaviour knows no callback, but can be asked to end with a signal.
extern "C" const char* __ubsan_default_options() { return "abort_on_error=1"; }

namespace {

extern "C" void onFatalSignal(int number) {
    if (number == SIGALRM) {
        printText("One input takes too long.\n");
    }
    saveCurrentInput();
    std::signal(number, SIG_DFL);
    std::raise(number);
}

void watchForFaults() {
#if defined(__SANITIZE_ADDRESS__)
    // The sanitizers end the program themselves, without a signal.
    __sanitizer_set_death_callback(saveCurrentInput);
#else
    std::signal(SIGSEGV, onFatalSignal);
    std::signal(SIGFPE, onFatalSignal);
#endif
    std::signal(SIGABRT, onFatalSignal);
    std::signal(SIGALRM, onFatalSignal);
}

void feed(std::string input) {
    s_currentInput = std::move(input);
    ::alarm(kHangSeconds);
    // A copy of exactly this size: a read past its end is then a read past the end of a heap block.
    const std::vector<std::uint8_t> bytes(s_currentInput.begin(), s_currentInput.end());
    try {
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    } catch (const std::exception& fault) {
        std::cerr << "An exception came out: " << fault.what() << '\n';
        std::abort();
    }
    ::alarm(0);
}

// ---- Mutations.

class Mutator {
public:
    Mutator(std::uint64_t seed, std::vector<std::string> corpus, std::vector<std::string> dictionary)
        : m_random(seed), m_seedCount(corpus.size()), m_corpus(std::move(corpus)),
          m_dictionary(std::move(dictionary)) {}

    std::string nextInput() {
        std::string input = any(m_corpus);
        // Mostly a few changes, now and then many; and a tenth of the children become parents.
        for (std::size_t changes = below(8) == 0 ? 1 + below(32) : 1 + below(4); changes > 0; --changes) {
            change(input);
        }
        input.resize(std::min(input.size(), kLongestInput));
        if (below(10) == 0) {
            remember(input);
        }
        return input;
    }

private:
    // Not std::uniform_int_distribution: its numbers differ from library to library.
    std::size_t below(std::size_t bound) { return bound == 0 ? 0 : m_random() % bound; }
    const std::string& any(const std::vector<std::string>& texts) { return texts[below(texts.size())]; }

    void remember(const std::string& input) {
        if (m_corpus.size() < kLargestCorpus) {
            m_corpus.push_back(input);
        } else if (m_seedCount < m_corpus.size()) {
            m_corpus[m_seedCount + below(m_corpus.size() - m_seedCount)] = input;
        }
    }

    void change(std::string& input) {
        const std::size_t at = below(input.size() + 1);
        const std::size_t length = std::min(input.size() - at, 1 + below(below(4) == 0 ? 256 : 8));
        switch (below(9)) {
        case 0: // flip one bit
            if (at < input.size()) {
                input[at] = static_cast<char>(static_cast<unsigned char>(input[at]) ^ (1U << below(8)));
            }
            break;
        case 1: // another byte, often one at the edge of what a byte holds
            if (at < input.size()) {
                static constexpr std::string_view kEdges("\x00\x01\x7f\x80\xff", 5);
                input[at] = below(2) == 0 ? kEdges[below(kEdges.size())] : static_cast<char>(below(256));
            }
            break;
        case 2:
            input.erase(at, length);
            break;
        case 3:
            input.insert(at, 1 + below(8), static_cast<char>(below(256)));
            break;
        case 4: { // repeat a block: nesting, long lines
            const std::string block = input.substr(at, length);
            for (std::size_t times = 1 + below(below(16) == 0 ? 2000 : 8);
                 times > 0 && input.size() < kLongestInput; --times) {
                input.insert(at, block);
            }
            break;
        }
        case 5: { // the head of this one, the tail of another
            const std::string& other = any(m_corpus);
            input = input.substr(0, at) + other.substr(below(other.size() + 1));
            break;
        }
        case 6: // move a block
            if (length > 0) {
                const std::string block = input.substr(at, length);
                input.erase(at, length);
                input.insert(below(input.size() + 1), block);
            }
            break;
        case 7:
            if (!m_dictionary.empty()) {
                input.insert(at, any(m_dictionary));
            }
            break;
        default:
            if (!m_dictionary.empty()) {
                input.replace(at, length, any(m_dictionary));
            }
            break;
        }
    }

    std::mt19937_64 m_random;
    std::size_t m_seedCount;
    std::vector<std::string> m_corpus;
    std::vector<std::string> m_dictionary;
};

int search(std::uint64_t seed, double seconds) {
    const std::vector<std::string> seeds = seedCorpus();
    if (seeds.empty()) {
        std::cerr << "The target has no seeds.\n";
        return 2;
    }
    std::cout << "seed " << seed << ", " << seeds.size() << " seeds, " << seconds << " s" << std::endl;
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    for (const std::string& input : seeds) {
        feed(input);
    }
    Mutator mutator(seed, seeds, fuzzDictionary());
    std::size_t count = seeds.size();
    while (std::chrono::steady_clock::now() < end) {
        feed(mutator.nextInput());
        ++count;
    }
    std::cout << count << " inputs, no fault" << std::endl;
    return 0;
}

int replay(const std::vector<std::string>& files) {
    for (const std::string& name : files) {
        std::ifstream file(name, std::ios::binary);
        if (!file) {
            std::cerr << "Cannot read " << name << '\n';
            return 2;
        }
        feed(std::string(std::istreambuf_iterator<char>(file), {}));
        std::cout << name << ": no fault" << std::endl;
    }
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const char* wantedSeconds = std::getenv("FUZZ_SECONDS");
    double seconds = wantedSeconds != nullptr ? std::atof(wantedSeconds) : 5;
    std::uint64_t seed = 20240229;
    std::vector<std::string> files;
    for (int i = 1; i < argumentCount; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--seconds" && i + 1 < argumentCount) {
            seconds = std::atof(arguments[++i]);
        } else if (argument == "--seed" && i + 1 < argumentCount) {
            seed = std::strtoull(arguments[++i], nullptr, 10);
        } else {
            files.emplace_back(argument);
        }
    }

    const std::string program = arguments[0];
    s_faultFile = "fault-" + program.substr(program.rfind('/') + 1) + ".bin";
    watchForFaults();
    return files.empty() ? search(seed, seconds) : replay(files);
}
