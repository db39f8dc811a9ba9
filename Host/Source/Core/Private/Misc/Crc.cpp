#include "Misc/Crc.h"

#include <array>

namespace
{
	constexpr std::array<uint32, 256> MakeTable()
	{
		std::array<uint32, 256> Table{};
		for (uint32 Byte = 0; Byte < 256; ++Byte)
		{
			uint32 Sum = Byte;
			for (int32 Bit = 0; Bit < 8; ++Bit)
			{
				Sum = (Sum >> 1) ^ ((Sum & 1) != 0 ? 0xEDB88320u : 0u);
			}
			Table[Byte] = Sum;
		}
		return Table;
	}

	constexpr std::array<uint32, 256> Table = MakeTable();

	uint32 AddByte(uint32 Sum, uint8 Byte)
	{
		return Table[(Sum ^ Byte) & 0xFF] ^ (Sum >> 8);
	}
}

uint32 FCrc::MemCrc32(const void* Data, int32 Length, uint32 CRC)
{
	uint32 Sum = ~CRC;
	const uint8* const Bytes = static_cast<const uint8*>(Data);
	for (int32 Index = 0; Index < Length; ++Index)
	{
		Sum = AddByte(Sum, Bytes[Index]);
	}
	return ~Sum;
}

uint32 FCrc::StrCrc32(const TCHAR* Data, uint32 CRC)
{
	uint32 Sum = ~CRC;
	for (; *Data != TEXT('\0'); ++Data)
	{
		Sum = AddByte(Sum, uint8(*Data));
		Sum = AddByte(Sum, uint8(*Data >> 8));
		// Characters count as 32 bits, so that the sum does not depend on how wide a platform's are.
		Sum = AddByte(AddByte(Sum, 0), 0);
	}
	return ~Sum;
}
