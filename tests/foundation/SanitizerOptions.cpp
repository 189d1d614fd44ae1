// For programs that use the platform, which keeps many objects for ever and asks for
// absurd amounts of memory when it reads a damaged file. ASAN_OPTIONS adds to this.
extern "C" __attribute__((visibility("default"))) const char *__asan_default_options() {
  return "detect_leaks=0:allocator_may_return_null=1";
}
