#include "Host/ElementDifference.h"

#include "Host/Texture.h"

namespace Host
{
	bool IsSameElement(const FDrawElement& A, const FDrawElement& B)
	{
		const FTexture* Texture = A.GetTexture();
		if (Texture && (Texture->IsUpdatable() || Texture->GetNativeHandle() != 0))
		{
			// The same object may by now hold another picture.
			return false;
		}
		return A.LocalToPixel == B.LocalToPixel && A.LocalSize == B.LocalSize && A.Bounds == B.Bounds && A.Colour == B.Colour && A.Radii == B.Radii
			&& A.TextureArea == B.TextureArea && A.OutlineColour == B.OutlineColour && A.OutlineWidth == B.OutlineWidth && A.Kind == B.Kind
			&& A.Flags == B.Flags && Texture == B.GetTexture() && A.GetRun() == B.GetRun() && A.GetLines() == B.GetLines()
			&& A.ClipQuads == B.ClipQuads;
	}
}
