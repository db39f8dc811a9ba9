#include "Host/Texture.h"

namespace Host
{
	namespace
	{
		int32 NumAliveTextures = 0;
		uint64 LastTextureId = 0;
		int64 NumWrittenPixels = 0;
		constexpr uint32 OpaqueBits = 0xff000000u;

		/** Product of two channels, rounded: exact for all pairs of bytes. */
		uint32 MultiplyChannels(uint32 A, uint32 B)
		{
			const uint32 Product = A * B + 128;
			return (Product + (Product >> 8)) >> 8;
		}

		uint32 Pack(uint32 B, uint32 G, uint32 R, uint32 A)
		{
			return B | G << 8 | R << 16 | A << 24;
		}

		uint32 PremultiplyStraight(const FColor& Colour)
		{
			const uint32 A = Colour.A;
			return Pack(MultiplyChannels(Colour.B, A), MultiplyChannels(Colour.G, A), MultiplyChannels(Colour.R, A), A);
		}

		uint32 TakeOpaque(const FColor& Colour)
		{
			return Pack(Colour.B, Colour.G, Colour.R, 255);
		}

		/** Channels above alpha would overflow in blending. */
		uint32 CutToAlpha(const FColor& Colour)
		{
			const uint32 A = Colour.A;
			return Pack(FMath::Min<uint32>(Colour.B, A), FMath::Min<uint32>(Colour.G, A), FMath::Min<uint32>(Colour.R, A), A);
		}

		/** Stores a row; gives the bits that all of its pixels have. */
		template <typename ConvertType>
		uint32 StoreRow(uint32* Out, const FColor* In, int32 Count, const ConvertType& Convert)
		{
			uint32 CommonBits = MAX_uint32;
			for (int32 X = 0; X < Count; ++X)
			{
				Out[X] = Convert(In[X]);
				CommonBits &= Out[X];
			}
			return CommonBits;
		}

		uint32 StoreRow(uint32* Out, const FColor* In, int32 Count, EPixelAlpha Alpha)
		{
			switch (Alpha)
			{
			case EPixelAlpha::Straight:
			{
				// Most pictures are opaque, and then there is nothing to multiply.
				const uint32 CommonBits = StoreRow(Out, In, Count, [](const FColor& Colour) { return Pack(Colour.B, Colour.G, Colour.R, Colour.A); });
				return CommonBits >= OpaqueBits ? CommonBits : StoreRow(Out, In, Count, PremultiplyStraight);
			}
			case EPixelAlpha::Premultiplied:
				return StoreRow(Out, In, Count, CutToAlpha);
			case EPixelAlpha::Ignored:
				break;
			}
			return StoreRow(Out, In, Count, TakeOpaque);
		}

		/** Mean of four pixels, channel by channel, rounded. */
		uint32 Average(uint32 P0, uint32 P1, uint32 P2, uint32 P3)
		{
			const uint32 Mask = 0x00ff00ffu;
			const uint32 Even = (P0 & Mask) + (P1 & Mask) + (P2 & Mask) + (P3 & Mask) + 0x00020002u;
			const uint32 Odd = (P0 >> 8 & Mask) + (P1 >> 8 & Mask) + (P2 >> 8 & Mask) + (P3 >> 8 & Mask) + 0x00020002u;
			return (Even >> 2 & Mask) | (Odd >> 2 & Mask) << 8;
		}

		/** Makes the rows from First on, as far as Last, of a picture half as large as the source. */
		void HalveRows(const uint32* Source, FIntPoint SourceSize, uint32* Target, FIntPoint Size, int32 First, int32 Last)
		{
			const int32 StepX = SourceSize.X > 1 ? 1 : 0;
			const int32 StepY = SourceSize.Y > 1 ? SourceSize.X : 0;
			uint32* Out = Target + static_cast<int64>(First) * Size.X;
			for (int32 Y = First; Y < Last; ++Y)
			{
				const uint32* In = Source + static_cast<int64>(Y) * (StepY ? 2 : 1) * SourceSize.X;
				for (int32 X = 0; X < Size.X; ++X, In += 2)
				{
					*Out++ = Average(In[0], In[StepX], In[StepY], In[StepX + StepY]);
				}
			}
		}

		FIntPoint HalvedSize(FIntPoint Size)
		{
			return FIntPoint(FMath::Max(Size.X / 2, 1), FMath::Max(Size.Y / 2, 1));
		}
	}

	FTexture::FTexture(FIntPoint InSize, FString InDebugName)
		: Size(InSize)
		, DebugName(MoveTemp(InDebugName))
		, Id(++LastTextureId)
		, NumFilledRows(InSize.Y)
	{
		checkf(Size.X > 0 && Size.Y > 0 && Size.X <= MaxSize && Size.Y <= MaxSize, TEXT("a texture cannot be %d x %d pixels"), Size.X, Size.Y);
		++NumAliveTextures;
	}

	FTexture::~FTexture()
	{
		--NumAliveTextures;
	}

	TSharedRef<const FTexture> FTexture::Make(FIntPoint Size, TConstArrayView<FColor> Pixels, EPixelAlpha Alpha, FString DebugName)
	{
		TSharedRef<FTexture> Texture = MakeShareable(new FTexture(Size, MoveTemp(DebugName)));
		Texture->AllocatePixels(Pixels, Alpha);
		return Texture;
	}

	TSharedRef<FTexture> FTexture::MakeUpdatable(FIntPoint Size, TConstArrayView<FColor> Pixels, EPixelAlpha Alpha, FString DebugName)
	{
		TSharedRef<FTexture> Texture = MakeShareable(new FTexture(Size, MoveTemp(DebugName)));
		Texture->bUpdatable = true;
		Texture->AllocatePixels(Pixels, Alpha);
		return Texture;
	}

	TSharedRef<FTexture> FTexture::MakeUnfilled(FIntPoint Size, FString DebugName)
	{
		TSharedRef<FTexture> Texture = MakeShareable(new FTexture(Size, MoveTemp(DebugName)));
		Texture->bUpdatable = true;
		Texture->Pixels.SetNumUninitialized(Size.X * Size.Y);
		Texture->NumFilledRows = 0;
		return Texture;
	}

	TSharedRef<FTexture> FTexture::MakeNative(FIntPoint Size, uint32 NativeHandle, bool bBottomUp, FString DebugName)
	{
		TSharedRef<FTexture> Texture = MakeShareable(new FTexture(Size, MoveTemp(DebugName)));
		Texture->NativeHandle = NativeHandle;
		Texture->bBottomUp = bBottomUp;
		Texture->bOpaque = false;
		return Texture;
	}

	void FTexture::AllocatePixels(TConstArrayView<FColor> Source, EPixelAlpha Alpha)
	{
		if (Source.Num() == 0)
		{
			checkf(bUpdatable, TEXT("a texture that cannot be updated needs pixels"));
			Pixels.SetNumZeroed(Size.X * Size.Y);
			bOpaque = false;
			return;
		}
		Pixels.SetNumUninitialized(Size.X * Size.Y);
		Store(FPixelRect::Make(0, 0, Size.X, Size.Y), Source, Alpha);
	}

	void FTexture::Store(const FPixelRect& Area, TConstArrayView<FColor> Source, EPixelAlpha Alpha)
	{
		checkf(Source.Num() == Area.Area(), TEXT("%d pixels were given for an area of %d"), Source.Num(), static_cast<int32>(Area.Area()));
		const FColor* In = Source.GetData();
		uint32 CommonBits = OpaqueBits;
		for (int32 Y = Area.Top; Y < Area.Bottom; ++Y)
		{
			CommonBits &= StoreRow(Pixels.GetData() + static_cast<int64>(Y) * Size.X + Area.Left, In, Area.Width(), Alpha);
			In += Area.Width();
		}
		bOpaque = bOpaque && CommonBits == OpaqueBits;
		NumWrittenPixels += Area.Area();
	}

	void FTexture::Update(const FPixelRect& Area, TConstArrayView<FColor> Source, EPixelAlpha Alpha)
	{
		checkf(bUpdatable, TEXT("texture '%s' is immutable"), *DebugName);
		checkf(FPixelRect::Make(0, 0, Size.X, Size.Y).Contains(Area), TEXT("the area to update leaves texture '%s'"), *DebugName);
		if (Area.IsEmpty())
		{
			return;
		}
		Store(Area, Source, Alpha);
		++Generation;
		// Rows of levels that came from rows above the area are still right.
		int32 NumRows = Area.Top;
		for (FMip& Mip : Mips)
		{
			NumRows /= 2;
			Mip.NumRows = FMath::Min(Mip.NumRows, NumRows);
		}
		if (NumFilledRows < Size.Y && Area.Width() == Size.X && Area.Top <= NumFilledRows)
		{
			NumFilledRows = FMath::Max(NumFilledRows, Area.Bottom);
			MakeMips(GetNumMips() - 1, NumFilledRows);
		}
	}

	void FTexture::MakeMips(int32 Count, int32 NumSourceRows) const
	{
		const uint32* Source = Pixels.GetData();
		FIntPoint SourceSize = Size;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			if (Index == Mips.Num())
			{
				FMip& Added = Mips.AddDefaulted_GetRef();
				Added.Size = HalvedSize(SourceSize);
				Added.Pixels.SetNumUninitialized(Added.Size.X * Added.Size.Y);
			}
			FMip& Mip = Mips[Index];
			const int32 NumRows = NumSourceRows == SourceSize.Y ? Mip.Size.Y : NumSourceRows / 2;
			if (Mip.NumRows < NumRows)
			{
				HalveRows(Source, SourceSize, Mip.Pixels.GetData(), Mip.Size, Mip.NumRows, NumRows);
				NumWrittenPixels += static_cast<int64>(NumRows - Mip.NumRows) * Mip.Size.X;
				Mip.NumRows = NumRows;
			}
			Source = Mip.Pixels.GetData();
			SourceSize = Mip.Size;
			NumSourceRows = Mip.NumRows;
		}
	}

	const uint32* FTexture::GetPixels() const
	{
		return Pixels.Num() > 0 ? Pixels.GetData() : nullptr;
	}

	int32 FTexture::GetNumMips() const
	{
		int32 Count = 1;
		for (int32 Extent = FMath::Max(Size.X, Size.Y); Extent > 1; Extent /= 2)
		{
			++Count;
		}
		return Count;
	}

	const uint32* FTexture::GetMip(int32 Level, FIntPoint& OutSize) const
	{
		OutSize = Size;
		Level = FMath::Min(Level, GetNumMips() - 1);
		if (Level <= 0 || Pixels.Num() == 0)
		{
			return GetPixels();
		}
		MakeMips(Level, Size.Y);
		OutSize = Mips[Level - 1].Size;
		return Mips[Level - 1].Pixels.GetData();
	}

	const uint32* FTexture::GetReadyRows(int32 Level, int32& OutNumRows) const
	{
		const bool bMade = Level > 0 && Level <= Mips.Num();
		OutNumRows = Level == 0 && Pixels.Num() > 0 ? NumFilledRows : bMade ? Mips[Level - 1].NumRows : 0;
		return OutNumRows == 0 ? nullptr : Level == 0 ? Pixels.GetData() : Mips[Level - 1].Pixels.GetData();
	}

	int64 FTexture::GetNumWrittenPixels()
	{
		return NumWrittenPixels;
	}

	int32 FTexture::GetNumAlive()
	{
		return NumAliveTextures;
	}
}
