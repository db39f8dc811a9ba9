#include "Project/ProjectImages.h"

#include "Images/HalvexImageAddress.h"

namespace
{
	/** A path as part of an address (RFC 3986); braces stay, in which the size of a picture is put. */
	FString EncodePath(const FString& Path)
	{
		const FTCHARToUTF8 Source(*Path);
		FString Result;
		for (int32 Index = 0; Index < Source.Length(); ++Index)
		{
			const uint8 Byte = static_cast<uint8>(Source.Get()[Index]);
			const TCHAR Letter = static_cast<TCHAR>(Byte);
			const bool bPlain = Byte < 0x80 && (FChar::IsAlnum(Letter) || Letter == '/' || Letter == '-' || Letter == '.' || Letter == '_' || Letter == '~'
				|| Letter == '{' || Letter == '}');
			Result += bPlain ? FString(1, &Letter) : FString::Printf(TEXT("%%%02X"), Byte);
		}
		return Result;
	}
}

FImageObjectData FProjectImages::Find(const FProjectData& Project, FName ImageId)
{
	FImageObjectData Result;
	const FProjectImage* const Image = ImageId.IsNone() ? nullptr : Project.Images.FindByPredicate([ImageId](const FProjectImage& Candidate) { return Candidate.ImageId == ImageId; });
	if (Image)
	{
		Result.ImageName = Image->Title;
		const bool bAbsolute = HalvexImageAddress::IsHttp(Image->Address);
		const bool bBesideAddress = HalvexImageAddress::IsHttp(Project.Source);
		Result.Address = bAbsolute ? Image->Address : bBesideAddress ? Project.Source + EncodePath(Image->Address) : ToFileAddress(Project.Source + Image->Address);
	}
	return Result;
}

FString FProjectImages::ToFileAddress(const FString& Path)
{
	return TEXT("file://") + EncodePath(Path);
}
