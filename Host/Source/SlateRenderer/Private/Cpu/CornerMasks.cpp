#include "Cpu/CornerMasks.h"

#include <cmath>
#include <cstring>

#include "Cpu/PixelMath.h"
#include "Shared/BoxShape.h"

namespace Host
{
	namespace
	{
		uint64 MakeKey(float Radius, float OutlineWidth)
		{
			uint32 Bits[2];
			std::memcpy(&Bits[0], &Radius, sizeof(float));
			std::memcpy(&Bits[1], &OutlineWidth, sizeof(float));
			return static_cast<uint64>(Bits[0]) << 32 | Bits[1];
		}

		TUniquePtr<FCornerMask> MakeMask(float Radius, float OutlineWidth)
		{
			TUniquePtr<FCornerMask> Mask = MakeUnique<FCornerMask>();
			Mask->Size = static_cast<int32>(std::ceil(FMath::Max(Radius, OutlineWidth)));
			const int32 Size = Mask->Size;
			Mask->Outer.SetNumUninitialized(Size * (Size + 1));
			Mask->Inner.SetNumUninitialized(OutlineWidth > 0.0f ? Mask->Outer.Num() : 0);
			for (int32 Row = 0; Row <= Size; ++Row)
			{
				for (int32 Column = 0; Column < Size; ++Column)
				{
					// The last row stands for all that the corner does not reach.
					const float FromTop = Row < Size ? static_cast<float>(Row) + 0.5f : static_cast<float>(2 * Size);
					const float Distance = DistanceFromCorner(static_cast<float>(Column) + 0.5f, FromTop, Radius).Distance;
					const int32 Index = Row * Size + Column;
					Mask->Outer[Index] = static_cast<uint8>(PixelMath::ToShare(0.5f - Distance));
					if (OutlineWidth > 0.0f)
					{
						Mask->Inner[Index] = static_cast<uint8>(PixelMath::ToShare(0.5f - (Distance + OutlineWidth)));
					}
				}
			}
			return Mask;
		}
	}

	const FCornerMask& FCornerMasks::Find(float Radius, float OutlineWidth)
	{
		TUniquePtr<FCornerMask>& Mask = Masks.FindOrAdd(MakeKey(Radius, OutlineWidth));
		if (!Mask.IsValid())
		{
			Mask = MakeMask(Radius, OutlineWidth);
			Bytes += Mask->Outer.Num() + Mask->Inner.Num();
		}
		return *Mask;
	}

	void FCornerMasks::BeginFrame()
	{
		if (Bytes > MaxBytes)
		{
			Masks.Reset();
			Bytes = 0;
		}
	}
}
