#pragma once

#include "CoreMinimal.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_STROKER_H

namespace Host
{
	class FFontFace;

	/**
	 * FreeType, and the faces that are open in it by their number. Faces share it, so that it closes after the last.
	 */
	class FFreeTypeLibrary
	{
	public:
		FFreeTypeLibrary();
		~FFreeTypeLibrary();
		FFreeTypeLibrary(const FFreeTypeLibrary&) = delete;
		FFreeTypeLibrary& operator=(const FFreeTypeLibrary&) = delete;

		FT_Library Get() const { return Library; }
		FT_Stroker GetStroker() const { return Stroker; }

		/** Gives the face a number that no face had before; 0 when all are used up. */
		uint16 AddFace(FFontFace& Face);
		void RemoveFace(uint16 Id);
		/** Null when that face is closed. */
		FFontFace* FindFace(uint16 Id) const { return Id < Faces.Num() ? Faces[Id] : nullptr; }

	private:
		FT_Library Library = nullptr;
		FT_Stroker Stroker = nullptr;
		/** Number 0 is no face's. */
		TArray<FFontFace*> Faces;
	};
}
