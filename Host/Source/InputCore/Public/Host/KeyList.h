#pragma once

/** Every key, as KEY(Name, DisplayName, Kind): what KEY makes of it is the includer's. */
#define HOST_FOR_EACH_KEY(KEY) \
	KEY(AnyKey, "Any Key", None) \
	KEY(MouseX, "Mouse X", MouseAxis) \
	KEY(MouseY, "Mouse Y", MouseAxis) \
	KEY(Mouse2D, "Mouse XY 2D-Axis", MouseAxis) \
	KEY(MouseScrollUp, "Mouse Wheel Up", MouseButton) \
	KEY(MouseScrollDown, "Mouse Wheel Down", MouseButton) \
	KEY(MouseWheelAxis, "Mouse Wheel Axis", MouseAxis) \
	KEY(LeftMouseButton, "Left Mouse Button", MouseButton) \
	KEY(RightMouseButton, "Right Mouse Button", MouseButton) \
	KEY(MiddleMouseButton, "Middle Mouse Button", MouseButton) \
	KEY(ThumbMouseButton, "Thumb Mouse Button", MouseButton) \
	KEY(ThumbMouseButton2, "Thumb Mouse Button 2", MouseButton) \
	KEY(BackSpace, "Backspace", Keyboard) \
	KEY(Tab, "Tab", Keyboard) \
	KEY(Enter, "Enter", Keyboard) \
	KEY(Pause, "Pause", Keyboard) \
	KEY(CapsLock, "Caps Lock", Keyboard) \
	KEY(Escape, "Escape", Keyboard) \
	KEY(SpaceBar, "Space Bar", Keyboard) \
	KEY(PageUp, "Page Up", Keyboard) \
	KEY(PageDown, "Page Down", Keyboard) \
	KEY(End, "End", Keyboard) \
	KEY(Home, "Home", Keyboard) \
	KEY(Left, "Left", Keyboard) \
	KEY(Up, "Up", Keyboard) \
	KEY(Right, "Right", Keyboard) \
	KEY(Down, "Down", Keyboard) \
	KEY(Insert, "Insert", Keyboard) \
	KEY(Delete, "Delete", Keyboard) \
	KEY(Zero, "0", Keyboard) \
	KEY(One, "1", Keyboard) \
	KEY(Two, "2", Keyboard) \
	KEY(Three, "3", Keyboard) \
	KEY(Four, "4", Keyboard) \
	KEY(Five, "5", Keyboard) \
	KEY(Six, "6", Keyboard) \
	KEY(Seven, "7", Keyboard) \
	KEY(Eight, "8", Keyboard) \
	KEY(Nine, "9", Keyboard) \
	KEY(A, "A", Keyboard) \
	KEY(B, "B", Keyboard) \
	KEY(C, "C", Keyboard) \
	KEY(D, "D", Keyboard) \
	KEY(E, "E", Keyboard) \
	KEY(F, "F", Keyboard) \
	KEY(G, "G", Keyboard) \
	KEY(H, "H", Keyboard) \
	KEY(I, "I", Keyboard) \
	KEY(J, "J", Keyboard) \
	KEY(K, "K", Keyboard) \
	KEY(L, "L", Keyboard) \
	KEY(M, "M", Keyboard) \
	KEY(N, "N", Keyboard) \
	KEY(O, "O", Keyboard) \
	KEY(P, "P", Keyboard) \
	KEY(Q, "Q", Keyboard) \
	KEY(R, "R", Keyboard) \
	KEY(S, "S", Keyboard) \
	KEY(T, "T", Keyboard) \
	KEY(U, "U", Keyboard) \
	KEY(V, "V", Keyboard) \
	KEY(W, "W", Keyboard) \
	KEY(X, "X", Keyboard) \
	KEY(Y, "Y", Keyboard) \
	KEY(Z, "Z", Keyboard) \
	KEY(NumPadZero, "Num 0", Keyboard) \
	KEY(NumPadOne, "Num 1", Keyboard) \
	KEY(NumPadTwo, "Num 2", Keyboard) \
	KEY(NumPadThree, "Num 3", Keyboard) \
	KEY(NumPadFour, "Num 4", Keyboard) \
	KEY(NumPadFive, "Num 5", Keyboard) \
	KEY(NumPadSix, "Num 6", Keyboard) \
	KEY(NumPadSeven, "Num 7", Keyboard) \
	KEY(NumPadEight, "Num 8", Keyboard) \
	KEY(NumPadNine, "Num 9", Keyboard) \
	KEY(Multiply, "Num *", Keyboard) \
	KEY(Add, "Num +", Keyboard) \
	KEY(Subtract, "Num -", Keyboard) \
	KEY(Decimal, "Num .", Keyboard) \
	KEY(Divide, "Num /", Keyboard) \
	KEY(F1, "F1", Keyboard) \
	KEY(F2, "F2", Keyboard) \
	KEY(F3, "F3", Keyboard) \
	KEY(F4, "F4", Keyboard) \
	KEY(F5, "F5", Keyboard) \
	KEY(F6, "F6", Keyboard) \
	KEY(F7, "F7", Keyboard) \
	KEY(F8, "F8", Keyboard) \
	KEY(F9, "F9", Keyboard) \
	KEY(F10, "F10", Keyboard) \
	KEY(F11, "F11", Keyboard) \
	KEY(F12, "F12", Keyboard) \
	KEY(NumLock, "Num Lock", Keyboard) \
	KEY(ScrollLock, "Scroll Lock", Keyboard) \
	KEY(LeftShift, "Left Shift", Modifier) \
	KEY(RightShift, "Right Shift", Modifier) \
	KEY(LeftControl, "Left Control", Modifier) \
	KEY(RightControl, "Right Control", Modifier) \
	KEY(LeftAlt, "Left Alt", Modifier) \
	KEY(RightAlt, "Right Alt", Modifier) \
	KEY(LeftCommand, "Left Command", Modifier) \
	KEY(RightCommand, "Right Command", Modifier) \
	KEY(Semicolon, ";", Keyboard) \
	KEY(Equals, "=", Keyboard) \
	KEY(Comma, ",", Keyboard) \
	KEY(Hyphen, "-", Keyboard) \
	KEY(Period, ".", Keyboard) \
	KEY(Slash, "/", Keyboard) \
	KEY(Tilde, "`", Keyboard) \
	KEY(LeftBracket, "[", Keyboard) \
	KEY(Backslash, "\\", Keyboard) \
	KEY(RightBracket, "]", Keyboard) \
	KEY(Apostrophe, "'", Keyboard)
