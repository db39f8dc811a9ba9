#include "Sdl/SdlTextInput.h"

#include "Sdl/DesktopState.h"

namespace Host
{
	void FSdlTextInput::Start()
	{
		FSdl::Get().StartTextInput();
	}

	void FSdlTextInput::SetCaretArea(const FIntRect& Area)
	{
		const FVector2f PixelsPerUnit = State.GetPixelsPerUnit();
		const auto ToUnits = [](int32 Pixels, float PerUnit) { return FMath::RoundToInt32(static_cast<float>(Pixels) / PerUnit); };
		const SDL_Rect Rect = {
			ToUnits(Area.Min.X, PixelsPerUnit.X),
			ToUnits(Area.Min.Y, PixelsPerUnit.Y),
			ToUnits(Area.Width(), PixelsPerUnit.X),
			ToUnits(Area.Height(), PixelsPerUnit.Y),
		};
		FSdl::Get().SetTextInputRect(&Rect);
	}

	void FSdlTextInput::CancelComposition()
	{
		FSdl::Get().ClearComposition();
	}

	void FSdlTextInput::Stop()
	{
		FSdl::Get().StopTextInput();
	}
}
