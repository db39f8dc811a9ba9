#include "Host/FreeTypeLibrary.h"

namespace Host
{
	FFreeTypeLibrary::FFreeTypeLibrary()
	{
		verifyf(FT_Init_FreeType(&Library) == 0, TEXT("FreeType could not be started"));
		verifyf(FT_Stroker_New(Library, &Stroker) == 0, TEXT("FreeType could not make a stroker"));
		Faces.Add(nullptr);
	}

	FFreeTypeLibrary::~FFreeTypeLibrary()
	{
		FT_Stroker_Done(Stroker);
		FT_Done_FreeType(Library);
	}

	uint16 FFreeTypeLibrary::AddFace(FFontFace& Face)
	{
		if (Faces.Num() > MAX_uint16)
		{
			return 0;
		}
		return static_cast<uint16>(Faces.Add(&Face));
	}

	void FFreeTypeLibrary::RemoveFace(uint16 Id)
	{
		if (Id != 0)
		{
			Faces[Id] = nullptr;
		}
	}
}
