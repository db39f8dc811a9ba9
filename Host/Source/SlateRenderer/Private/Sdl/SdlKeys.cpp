#include "Sdl/SdlKeys.h"

#include "Sdl/SdlLibrary.h"

namespace Host::SdlKeys
{
	namespace
	{
		struct FKeyPair
		{
			int32 Code;
			FKey Key;
		};

		const TMap<int32, FKey>& GetTable()
		{
			static const TMap<int32, FKey> Table = []
			{
				const FKeyPair Pairs[] = {
					{ SDLK_BACKSPACE, EKeys::BackSpace }, { SDLK_TAB, EKeys::Tab }, { SDLK_RETURN, EKeys::Enter }, { SDLK_KP_ENTER, EKeys::Enter },
					{ SDLK_PAUSE, EKeys::Pause }, { SDLK_CAPSLOCK, EKeys::CapsLock }, { SDLK_ESCAPE, EKeys::Escape }, { SDLK_SPACE, EKeys::SpaceBar },
					{ SDLK_PAGEUP, EKeys::PageUp }, { SDLK_PAGEDOWN, EKeys::PageDown }, { SDLK_END, EKeys::End }, { SDLK_HOME, EKeys::Home },
					{ SDLK_LEFT, EKeys::Left }, { SDLK_UP, EKeys::Up }, { SDLK_RIGHT, EKeys::Right }, { SDLK_DOWN, EKeys::Down },
					{ SDLK_INSERT, EKeys::Insert }, { SDLK_DELETE, EKeys::Delete },
					{ SDLK_0, EKeys::Zero }, { SDLK_1, EKeys::One }, { SDLK_2, EKeys::Two }, { SDLK_3, EKeys::Three }, { SDLK_4, EKeys::Four },
					{ SDLK_5, EKeys::Five }, { SDLK_6, EKeys::Six }, { SDLK_7, EKeys::Seven }, { SDLK_8, EKeys::Eight }, { SDLK_9, EKeys::Nine },
					{ SDLK_KP_0, EKeys::NumPadZero }, { SDLK_KP_1, EKeys::NumPadOne }, { SDLK_KP_2, EKeys::NumPadTwo }, { SDLK_KP_3, EKeys::NumPadThree },
					{ SDLK_KP_4, EKeys::NumPadFour }, { SDLK_KP_5, EKeys::NumPadFive }, { SDLK_KP_6, EKeys::NumPadSix }, { SDLK_KP_7, EKeys::NumPadSeven },
					{ SDLK_KP_8, EKeys::NumPadEight }, { SDLK_KP_9, EKeys::NumPadNine }, { SDLK_KP_MULTIPLY, EKeys::Multiply }, { SDLK_KP_PLUS, EKeys::Add },
					{ SDLK_KP_MINUS, EKeys::Subtract }, { SDLK_KP_PERIOD, EKeys::Decimal }, { SDLK_KP_DIVIDE, EKeys::Divide },
					{ SDLK_F1, EKeys::F1 }, { SDLK_F2, EKeys::F2 }, { SDLK_F3, EKeys::F3 }, { SDLK_F4, EKeys::F4 }, { SDLK_F5, EKeys::F5 }, { SDLK_F6, EKeys::F6 },
					{ SDLK_F7, EKeys::F7 }, { SDLK_F8, EKeys::F8 }, { SDLK_F9, EKeys::F9 }, { SDLK_F10, EKeys::F10 }, { SDLK_F11, EKeys::F11 }, { SDLK_F12, EKeys::F12 },
					{ SDLK_NUMLOCKCLEAR, EKeys::NumLock }, { SDLK_SCROLLLOCK, EKeys::ScrollLock },
					{ SDLK_LSHIFT, EKeys::LeftShift }, { SDLK_RSHIFT, EKeys::RightShift }, { SDLK_LCTRL, EKeys::LeftControl }, { SDLK_RCTRL, EKeys::RightControl },
					{ SDLK_LALT, EKeys::LeftAlt }, { SDLK_RALT, EKeys::RightAlt }, { SDLK_LGUI, EKeys::LeftCommand }, { SDLK_RGUI, EKeys::RightCommand },
					{ SDLK_SEMICOLON, EKeys::Semicolon }, { SDLK_EQUALS, EKeys::Equals }, { SDLK_COMMA, EKeys::Comma }, { SDLK_MINUS, EKeys::Hyphen },
					{ SDLK_PERIOD, EKeys::Period }, { SDLK_SLASH, EKeys::Slash }, { SDLK_BACKQUOTE, EKeys::Tilde }, { SDLK_LEFTBRACKET, EKeys::LeftBracket },
					{ SDLK_BACKSLASH, EKeys::Backslash }, { SDLK_RIGHTBRACKET, EKeys::RightBracket }, { SDLK_QUOTE, EKeys::Apostrophe },
				};
				TMap<int32, FKey> Result;
				for (const FKeyPair& Pair : Pairs)
				{
					Result.Add(Pair.Code, Pair.Key);
				}
				const FKey Letters[] = { EKeys::A, EKeys::B, EKeys::C, EKeys::D, EKeys::E, EKeys::F, EKeys::G, EKeys::H, EKeys::I, EKeys::J, EKeys::K, EKeys::L, EKeys::M,
					EKeys::N, EKeys::O, EKeys::P, EKeys::Q, EKeys::R, EKeys::S, EKeys::T, EKeys::U, EKeys::V, EKeys::W, EKeys::X, EKeys::Y, EKeys::Z };
				for (int32 Index = 0; Index < static_cast<int32>(UE_ARRAY_COUNT(Letters)); ++Index)
				{
					Result.Add(SDLK_a + Index, Letters[Index]);
				}
				return Result;
			}();
			return Table;
		}
	}

	FKey ToKey(int32 KeyCode)
	{
		const FKey* Key = GetTable().Find(KeyCode);
		return Key ? *Key : EKeys::Invalid;
	}

	FKey ToMouseButton(uint8 Button)
	{
		switch (Button)
		{
		case SDL_BUTTON_LEFT:
			return EKeys::LeftMouseButton;
		case SDL_BUTTON_MIDDLE:
			return EKeys::MiddleMouseButton;
		case SDL_BUTTON_RIGHT:
			return EKeys::RightMouseButton;
		case SDL_BUTTON_X1:
			return EKeys::ThumbMouseButton;
		case SDL_BUTTON_X2:
			return EKeys::ThumbMouseButton2;
		default:
			return EKeys::Invalid;
		}
	}

	FModifierKeysState ToModifiers(uint16 ModState)
	{
		const auto Has = [ModState](uint16 Bit) { return (ModState & Bit) != 0; };
		return FModifierKeysState(Has(KMOD_LSHIFT), Has(KMOD_RSHIFT), Has(KMOD_LCTRL), Has(KMOD_RCTRL), Has(KMOD_LALT), Has(KMOD_RALT), Has(KMOD_LGUI),
			Has(KMOD_RGUI), Has(KMOD_CAPS));
	}
}
