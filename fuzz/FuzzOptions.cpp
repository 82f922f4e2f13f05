// Memory that was given back is soon used again: the sanitizer's own bounds would have most of an input's time go into
// fetching fresh memory.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options() {
  return "quarantine_size_mb=4:allocator_release_to_os_interval_ms=-1";
}
