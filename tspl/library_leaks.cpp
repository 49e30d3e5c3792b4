// Fontconfig loses some bytes of its configuration while it reads it. The leak checker takes them
// for the program's own; the names are those that it looks for. Only what is built with it has this
// file.

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_options();

extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}

// What it leaves out is told in no program's messages.
extern "C" const char* __lsan_default_options() {
    return "print_suppressions=0";
}
// NOLINTEND(bugprone-reserved-identifier)
