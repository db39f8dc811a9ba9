// Under the address sanitizer: graphics drivers keep a few buffers of their own until the program ends. A driver that
// was unloaded has no name that could be suppressed by, so none is.

#ifdef __clang__
#if __has_feature(address_sanitizer)

extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions()
{
	return "leak:libEGL\nleak:libGLX\nleak:_dri.so\nleak:libgallium\n";
}

extern "C" __attribute__((visibility("default"))) int dlclose(void*) noexcept
{
	return 0;
}

#endif
#endif
