#include "FileCalls.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace
{
	/** Calls until the last one; 0 when there is none. */
	int CallsLeft = 0;

	bool IsLastCall()
	{
		return CallsLeft > 0 && --CallsLeft == 0;
	}

	void Die()
	{
		kill(getpid(), SIGKILL);
	}

	void DieIfLastCall()
	{
		if (IsLastCall())
		{
			Die();
		}
	}
}

void FileCalls::DieAt(int Call)
{
	CallsLeft = Call;
}

// The linker leads the calls of this program's modules here.
extern "C"
{
	int __real_mkostemp(char* Template, int Flags);
	int __real_fchmod(int File, mode_t Mode);
	ssize_t __real_write(int File, const void* Bytes, size_t Size);
	int __real_fsync(int File);
	int __real_rename(const char* From, const char* To);

	int __wrap_mkostemp(char* Template, int Flags)
	{
		DieIfLastCall();
		return __real_mkostemp(Template, Flags);
	}

	int __wrap_fchmod(int File, mode_t Mode)
	{
		DieIfLastCall();
		return __real_fchmod(File, Mode);
	}

	ssize_t __wrap_write(int File, const void* Bytes, size_t Size)
	{
		if (IsLastCall())
		{
			(void)!__real_write(File, Bytes, Size / 2);
			Die();
		}
		return __real_write(File, Bytes, Size);
	}

	int __wrap_fsync(int File)
	{
		DieIfLastCall();
		return __real_fsync(File);
	}

	int __wrap_rename(const char* From, const char* To)
	{
		DieIfLastCall();
		return __real_rename(From, To);
	}
}
