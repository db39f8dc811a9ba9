// Under the address sanitizer: the parsing library keeps a few buffers of its own until the program ends.
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions()
{
	return "leak:libLLVM\nleak:libclang\n";
}
