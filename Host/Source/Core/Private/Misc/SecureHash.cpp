#include "Misc/SecureHash.h"

#include "HAL/UnrealMemory.h"

#include <bit>

namespace
{
	constexpr uint64 BlockSize = 64;

	uint32 ReadBigEndian(const uint8* Bytes)
	{
		return uint32(Bytes[0]) << 24 | uint32(Bytes[1]) << 16 | uint32(Bytes[2]) << 8 | uint32(Bytes[3]);
	}

	/** One round; section 6.1.2. */
	void AddBlock(uint32 (&State)[5], const uint8* Block)
	{
		uint32 Words[80];
		for (int32 Index = 0; Index < 16; ++Index)
		{
			Words[Index] = ReadBigEndian(Block + Index * 4);
		}
		for (int32 Index = 16; Index < 80; ++Index)
		{
			Words[Index] = std::rotl(Words[Index - 3] ^ Words[Index - 8] ^ Words[Index - 14] ^ Words[Index - 16], 1);
		}
		uint32 A = State[0];
		uint32 B = State[1];
		uint32 C = State[2];
		uint32 D = State[3];
		uint32 E = State[4];
		for (int32 Index = 0; Index < 80; ++Index)
		{
			uint32 Mix;
			uint32 Constant;
			if (Index < 20)
			{
				Mix = (B & C) | (~B & D);
				Constant = 0x5a827999;
			}
			else if (Index < 40)
			{
				Mix = B ^ C ^ D;
				Constant = 0x6ed9eba1;
			}
			else if (Index < 60)
			{
				Mix = (B & C) | (B & D) | (C & D);
				Constant = 0x8f1bbcdc;
			}
			else
			{
				Mix = B ^ C ^ D;
				Constant = 0xca62c1d6;
			}
			const uint32 Sum = std::rotl(A, 5) + Mix + E + Constant + Words[Index];
			E = D;
			D = C;
			C = std::rotl(B, 30);
			B = A;
			A = Sum;
		}
		State[0] += A;
		State[1] += B;
		State[2] += C;
		State[3] += D;
		State[4] += E;
	}
}

FString FSHAHash::ToString() const
{
	FString Result;
	for (const uint8 Byte : Hash)
	{
		Result += FString::Printf(TEXT("%02X"), Byte);
	}
	return Result;
}

FSHAHash FSHA1::HashBuffer(const void* Data, uint64 DataSize)
{
	uint32 State[5] = { 0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476, 0xc3d2e1f0 };
	const uint8* Bytes = static_cast<const uint8*>(Data);
	uint64 Rest = DataSize;
	for (; Rest >= BlockSize; Rest -= BlockSize, Bytes += BlockSize)
	{
		AddBlock(State, Bytes);
	}
	// The rest, a one bit, zeros, and the length in bits at the end of a block.
	uint8 Tail[2 * BlockSize] = {};
	if (Rest > 0)
	{
		FMemory::Memcpy(Tail, Bytes, Rest);
	}
	Tail[Rest] = 0x80;
	const uint64 TailSize = Rest + 9 <= BlockSize ? BlockSize : 2 * BlockSize;
	for (int32 Index = 0; Index < 8; ++Index)
	{
		Tail[TailSize - 1 - Index] = uint8(DataSize * 8 >> (8 * Index));
	}
	for (uint64 Offset = 0; Offset < TailSize; Offset += BlockSize)
	{
		AddBlock(State, Tail + Offset);
	}
	FSHAHash Result;
	for (int32 Index = 0; Index < 20; ++Index)
	{
		Result.Hash[Index] = uint8(State[Index / 4] >> (24 - 8 * (Index % 4)));
	}
	return Result;
}
