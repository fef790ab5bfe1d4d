#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

int main(int count, char** arguments) {
    // As applications do: no result may depend on the host's locale.
    if (std::setlocale(LC_ALL, "") == nullptr && std::getenv("LC_NUMERIC") != nullptr) {
        std::fputs("The locale that the environment names is not installed.\n", stderr);
        return 1;
    }
    return doctest::Context(count, arguments).run();
}

// Fontconfig's patterns refer to their parts by offsets, which the leak check
// cannot follow: everything that a living catalogue holds looks lost to it.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig"; }
