// Fontconfig keeps its configuration for the life of the process and never
// frees it; the leak checker of the sanitizer build is told so here, for
// every test of this program that draws text.
extern "C" __attribute__((used, visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:libfontconfig.so\n";
}
