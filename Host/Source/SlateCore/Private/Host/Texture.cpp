#include "Host/Texture.h"

namespace Host
{
	namespace
	{
		int32 NumAliveTextures = 0;
		uint64 LastTextureId = 0;

		/** Product of two channels, rounded: exact for all pairs of bytes. */
		uint32 MultiplyChannels(uint32 A, uint32 B)
		{
			const uint32 Product = A * B + 128;
			return (Product + (Product >> 8)) >> 8;
		}

		uint32 Premultiply(const FColor& Colour, EPixelAlpha Alpha)
		{
			uint32 B = Colour.B;
			uint32 G = Colour.G;
			uint32 R = Colour.R;
			uint32 A = Colour.A;
			if (Alpha == EPixelAlpha::Ignored)
			{
				A = 255;
			}
			else if (Alpha == EPixelAlpha::Straight)
			{
				B = MultiplyChannels(B, A);
				G = MultiplyChannels(G, A);
				R = MultiplyChannels(R, A);
			}
			else
			{
				// Channels above alpha would overflow in blending.
				B = FMath::Min(B, A);
				G = FMath::Min(G, A);
				R = FMath::Min(R, A);
			}
			return B | G << 8 | R << 16 | A << 24;
		}

		/** Mean of four pixels, channel by channel, rounded. */
		uint32 Average(uint32 P0, uint32 P1, uint32 P2, uint32 P3)
		{
			const uint32 Mask = 0x00ff00ffu;
			const uint32 Even = (P0 & Mask) + (P1 & Mask) + (P2 & Mask) + (P3 & Mask) + 0x00020002u;
			const uint32 Odd = (P0 >> 8 & Mask) + (P1 >> 8 & Mask) + (P2 >> 8 & Mask) + (P3 >> 8 & Mask) + 0x00020002u;
			return (Even >> 2 & Mask) | (Odd >> 2 & Mask) << 8;
		}

		TArray<uint32> Halve(const uint32* Source, FIntPoint SourceSize, FIntPoint Size)
		{
			TArray<uint32> Result;
			Result.SetNumUninitialized(Size.X * Size.Y);
			const int32 StepX = SourceSize.X > 1 ? 1 : 0;
			const int32 StepY = SourceSize.Y > 1 ? SourceSize.X : 0;
			uint32* Out = Result.GetData();
			for (int32 Y = 0; Y < Size.Y; ++Y)
			{
				const uint32* In = Source + static_cast<int64>(Y) * (StepY ? 2 : 1) * SourceSize.X;
				for (int32 X = 0; X < Size.X; ++X, In += 2)
				{
					*Out++ = Average(In[0], In[StepX], In[StepY], In[StepX + StepY]);
				}
			}
			return Result;
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
		uint32 AllAlphas = 0xff000000u;
		for (int32 Y = Area.Top; Y < Area.Bottom; ++Y)
		{
			uint32* Out = Pixels.GetData() + static_cast<int64>(Y) * Size.X;
			for (int32 X = Area.Left; X < Area.Right; ++X)
			{
				const uint32 Pixel = Premultiply(*In++, Alpha);
				Out[X] = Pixel;
				AllAlphas &= Pixel;
			}
		}
		bOpaque = bOpaque && AllAlphas == 0xff000000u;
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
		Mips.Reset();
		++Generation;
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
		if (Level <= 0 || Pixels.Num() == 0)
		{
			return GetPixels();
		}
		Level = FMath::Min(Level, GetNumMips() - 1);
		while (Mips.Num() < Level)
		{
			const uint32* Source = Mips.Num() > 0 ? Mips.Last().Pixels.GetData() : Pixels.GetData();
			const FIntPoint SourceSize = Mips.Num() > 0 ? Mips.Last().Size : Size;
			FMip Mip;
			Mip.Size = HalvedSize(SourceSize);
			Mip.Pixels = Halve(Source, SourceSize, Mip.Size);
			Mips.Add(MoveTemp(Mip));
		}
		OutSize = Mips[Level - 1].Size;
		return Mips[Level - 1].Pixels.GetData();
	}

	int32 FTexture::GetNumAlive()
	{
		return NumAliveTextures;
	}
}
