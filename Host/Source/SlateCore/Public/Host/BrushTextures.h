#pragma once

#include "CoreMinimal.h"

class UObject;
struct FSlateBrush;

namespace Host
{
	class FTexture;

	/**
	 * Finds the picture behind a brush's resource object. The classes of such objects live on higher floors, which
	 * register how to get at the picture.
	 */
	class FBrushTextures
	{
	public:
		/** Gives the picture of an object, or null when the object is of a class it does not know or has none. */
		using FResolver = TSharedPtr<const FTexture> (*)(UObject& Resource);

		/** Adds a resolver. They are asked in the order of registration; the first answer counts. */
		static void Register(FResolver Resolver);
		static void Unregister(FResolver Resolver);

		/** The picture that the brush shows, or null: the brush is then drawn in its plain colour. */
		static TSharedPtr<const FTexture> Find(const FSlateBrush& Brush);
	};
}
