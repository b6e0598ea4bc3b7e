/// What the font library keeps to the program's end is no leak of ours. The leak checker asks for
/// this by name.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }
