#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HAL/NativePath.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace Host
{
	/** The system's words for an error number. */
	inline FString DescribeError(int Error)
	{
		return FromNative(std::strerror(Error));
	}

	/** An open file or folder, closed at the end. */
	class FDescriptor
	{
	public:
		explicit FDescriptor(int InValue) : Value(InValue) {}
		~FDescriptor() { Close(); }
		FDescriptor(const FDescriptor&) = delete;
		FDescriptor& operator=(const FDescriptor&) = delete;

		bool IsValid() const { return Value >= 0; }
		int Get() const { return Value; }

		/** Closes what it holds, and holds another one. */
		void Reset(int NewValue)
		{
			Close();
			Value = NewValue;
		}

		/** Returns false, with the error in errno, when what was written may not have arrived. */
		bool Close()
		{
			const int Closed = Value;
			Value = -1;
			return Closed < 0 || close(Closed) == 0;
		}

	private:
		int Value;
	};

	/** Writes all bytes; false with the error in errno. */
	inline bool WriteAll(int File, const char* Bytes, SIZE_T Size)
	{
		while (Size > 0)
		{
			const ssize_t Written = write(File, Bytes, Size);
			if (Written < 0)
			{
				if (errno == EINTR)
				{
					continue;
				}
				return false;
			}
			Bytes += Written;
			Size -= SIZE_T(Written);
		}
		return true;
	}

	/** Reads as many bytes as the array has, or up to the end of the file if that comes first; false with the error in errno. */
	inline bool ReadAll(int File, TArray<uint8>& Bytes)
	{
		int32 Count = 0;
		while (Count < Bytes.Num())
		{
			const ssize_t Part = read(File, Bytes.GetData() + Count, SIZE_T(Bytes.Num() - Count));
			if (Part < 0 && errno == EINTR)
			{
				continue;
			}
			if (Part < 0)
			{
				return false;
			}
			if (Part == 0)
			{
				break;
			}
			Count += int32(Part);
		}
		Bytes.SetNum(Count);
		return true;
	}
}
