#include "Host/FontFaces.h"

#include "Fonts/CompositeFont.h"
#include "Host/BuiltInFont.h"
#include "Host/FontLog.h"

namespace Host
{
	FFontFaces::FFontFaces()
		: Library(MakeShared<FFreeTypeLibrary>())
	{
	}

	FFontFaces::~FFontFaces() = default;

	TSharedRef<FFontFace> FFontFaces::Load(const FFontData& Font)
	{
		if (!Font.HasFont())
		{
			return GetBuiltIn();
		}
		const bool bStream = Font.GetLoadingPolicy() == EFontLoadingPolicy::Stream;
		for (const FFaceFile& Known : Faces)
		{
			if (Known.bStream == bStream && Known.SubFaceIndex == Font.GetSubFaceIndex()
				&& Known.Filename.Equals(Font.GetFontFilename(), ESearchCase::CaseSensitive))
			{
				return Known.Face.IsValid() ? Known.Face.ToSharedRef() : GetBuiltIn();
			}
		}
		FString Error;
		TSharedPtr<FFontFace> Face = Open(Font, Error);
		if (!Face.IsValid())
		{
			UE_LOG(LogSlateFonts, Error, TEXT("%s: cannot be used as a font: %s; the built-in one is shown instead"), *Font.GetFontFilename(), *Error);
		}
		Faces.Add({ Font.GetFontFilename(), Font.GetSubFaceIndex(), bStream, Face });
		return Face.IsValid() ? Face.ToSharedRef() : GetBuiltIn();
	}

	TSharedPtr<FFontFace> FFontFaces::Open(const FFontData& Font, FString& OutError) const
	{
		if (Font.GetLoadingPolicy() == EFontLoadingPolicy::Stream)
		{
			return FFontFace::FromFile(Library, Font.GetFontFilename(), Font.GetSubFaceIndex(), OutError);
		}
		FFontFileStream File;
		if (!File.Open(Font.GetFontFilename()))
		{
			OutError = TEXT("the file cannot be opened");
			return nullptr;
		}
		// Read no more than a font may have, whatever the file is.
		if (File.GetSize() > FFontFace::MaxFileSize)
		{
			OutError = TEXT("it is larger than 64 MiB");
			return nullptr;
		}
		return FFontFace::FromMemory(Library, File.ReadStart(static_cast<int32>(File.GetSize())), Font.GetSubFaceIndex(), OutError);
	}

	TSharedRef<FFontFace> FFontFaces::GetBuiltIn()
	{
		if (!BuiltIn.IsValid())
		{
			FString Error;
			BuiltIn = FFontFace::FromMemory(Library, ReadBuiltInFont(), 0, Error);
			checkf(BuiltIn.IsValid(), TEXT("The built-in font is unusable: %s"), *Error);
		}
		return BuiltIn.ToSharedRef();
	}

	void FFontFaces::Flush()
	{
		Faces.Empty();
	}
}
