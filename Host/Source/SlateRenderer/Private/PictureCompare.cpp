#include "Host/PictureCompare.h"

#include "Cpu/PixelMath.h"
#include "Host/ImageFile.h"

namespace Host
{
	namespace
	{
		/** Greatest difference of a channel between two premultiplied pixels. */
		int32 Difference(uint32 A, uint32 B)
		{
			int32 Largest = 0;
			for (int32 Shift = 0; Shift < 32; Shift += 8)
			{
				const int32 ChannelA = static_cast<int32>(A >> Shift & 255);
				const int32 ChannelB = static_cast<int32>(B >> Shift & 255);
				Largest = FMath::Max(Largest, FMath::Abs(ChannelA - ChannelB));
			}
			return Largest;
		}

		int32 Difference(const FColor& A, const FColor& B)
		{
			return Difference(PixelMath::Premultiply(A), PixelMath::Premultiply(B));
		}
	}

	FString FPictureDifference::ToString() const
	{
		if (!bSameSize)
		{
			return TEXT("the pictures differ in size");
		}
		if (NumDifferent == 0)
		{
			return FString::Printf(TEXT("the pictures agree; no channel differs by more than %d"), Largest);
		}
		return FString::Printf(TEXT("%d pixels differ, by up to %d of 255, first at (%d, %d)"), NumDifferent, Largest, FirstPlace.X, FirstPlace.Y);
	}

	FPictureDifference ComparePictures(const FPicture& Expected, const FPicture& Actual, int32 Tolerance)
	{
		FPictureDifference Result;
		Result.bSameSize = Expected.Size == Actual.Size;
		if (!Result.bSameSize)
		{
			return Result;
		}
		for (int32 Index = 0; Index < Expected.Pixels.Num(); ++Index)
		{
			const int32 Here = Difference(Expected.Pixels[Index], Actual.Pixels[Index]);
			Result.Largest = FMath::Max(Result.Largest, Here);
			if (Here > Tolerance)
			{
				if (Result.NumDifferent++ == 0)
				{
					Result.FirstPlace = FIntPoint(Index % Expected.Size.X, Index / Expected.Size.X);
				}
			}
		}
		return Result;
	}

	FPicture MakeDifferencePicture(const FPicture& Expected, const FPicture& Actual)
	{
		FPicture Result;
		Result.Size = FIntPoint(FMath::Max(Expected.Size.X, Actual.Size.X), FMath::Max(Expected.Size.Y, Actual.Size.Y));
		Result.Pixels.SetNumUninitialized(Result.Size.X * Result.Size.Y);
		const auto Has = [](const FPicture& Picture, int32 X, int32 Y) { return X < Picture.Size.X && Y < Picture.Size.Y; };
		for (int32 Y = 0; Y < Result.Size.Y; ++Y)
		{
			for (int32 X = 0; X < Result.Size.X; ++X)
			{
				FColor& Out = Result.Pixels[Y * Result.Size.X + X];
				if (!Has(Expected, X, Y) || !Has(Actual, X, Y))
				{
					Out = FColor(255, 0, 255, 255);
					continue;
				}
				const FColor& Wanted = Expected.At(X, Y);
				const int32 Here = Difference(Wanted, Actual.At(X, Y));
				const uint8 Faint = static_cast<uint8>(192 + (Wanted.R + Wanted.G + Wanted.B) / 12);
				Out = Here == 0 ? FColor(Faint, Faint, Faint, 255) : FColor(255, static_cast<uint8>(FMath::Max(128 - Here, 0)), 0, 255);
			}
		}
		return Result;
	}

	bool LoadPicture(const FString& Path, FPicture& OutPicture, FString& OutError)
	{
		FImage Image;
		if (!ReadImageFile(Path, Image, OutError))
		{
			return false;
		}
		OutPicture.Size = FIntPoint(Image.SizeX, Image.SizeY);
		OutPicture.Pixels.Reset();
		OutPicture.Pixels.Append(Image.AsBGRA8().GetData(), Image.AsBGRA8().Num());
		return true;
	}

	bool SavePicture(const FString& Path, const FPicture& Picture, FString& OutError)
	{
		return WritePngFile(Path, FImageView(Picture.Pixels.GetData(), Picture.Size.X, Picture.Size.Y), OutError);
	}
}
