#pragma once

#include "CoreMinimal.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstdio>

namespace Host
{
	/**
	 * Lets FreeType read a file piece by piece. Not by mapping it into memory: when a mapped file is cut short by
	 * someone else, reading it kills the process, while here it is only a glyph that cannot be read.
	 */
	class FFontFileStream
	{
	public:
		FFontFileStream() = default;
		~FFontFileStream();
		FFontFileStream(const FFontFileStream&) = delete;
		FFontFileStream& operator=(const FFontFileStream&) = delete;

		bool Open(const FString& Filename);
		int64 GetSize() const { return static_cast<int64>(Stream.size); }
		/** Reads up to that many bytes from the beginning. */
		TArray<uint8> ReadStart(int32 Count);
		FT_Stream Get() { return &Stream; }

	private:
		static unsigned long Read(FT_Stream Stream, unsigned long Offset, unsigned char* Buffer, unsigned long Count);

		std::FILE* File = nullptr;
		FT_StreamRec Stream = {};
	};
}
