#pragma once

#include "CoreMinimal.h"
#include "Host/FontFace.h"

struct FFontData;

namespace Host
{
	/**
	 * The faces in use, each file opened once. A file that cannot be used gives one line in the log, and the built-in
	 * face in its place.
	 */
	class FFontFaces
	{
	public:
		FFontFaces();
		~FFontFaces();

		/** Opens the file, or finds it open. */
		TSharedRef<FFontFace> Load(const FFontData& Font);

		/** The face that is part of the program: letters and signs of the western languages. */
		TSharedRef<FFontFace> GetBuiltIn();

		/** A face by its number, as long as anyone holds it. */
		FFontFace* Find(uint16 Id) const { return Library->FindFace(Id); }

		/** Closes what no font holds, and forgets which files were found to be bad. */
		void Flush();

		int32 Num() const { return Faces.Num() + (BuiltIn.IsValid() ? 1 : 0); }

	private:
		struct FFaceFile
		{
			FString Filename;
			int32 SubFaceIndex = 0;
			bool bStream = false;
			/** Null for a bad file. */
			TSharedPtr<FFontFace> Face;
		};

		TSharedPtr<FFontFace> Open(const FFontData& Font, FString& OutError) const;

		TSharedRef<FFreeTypeLibrary> Library;
		/** Few enough to be searched one by one: fonts are resolved seldom. */
		TArray<FFaceFile> Faces;
		TSharedPtr<FFontFace> BuiltIn;
	};
}
