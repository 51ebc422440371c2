// SPDX-License-Identifier: MIT
// Linked into programs that are built for the leak sanitizer, and into no others. The sanitizer looks for
// these two functions by name, so they must be seen.

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)
extern "C" {

[[gnu::visibility("default")]] const char* __lsan_default_suppressions();
[[gnu::visibility("default")]] const char* __lsan_default_options();

// Qt's platform without a screen never gives back the screen that it stands for.
const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen.so\n";
}

// What is printed to stderr is ours alone.
const char* __lsan_default_options()
{
    return "print_suppressions=0";
}

} // extern "C"
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp,readability-identifier-naming)
