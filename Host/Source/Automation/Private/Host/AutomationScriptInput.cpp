#include "Host/AutomationScript.h"

namespace Host
{
	namespace
	{
		FKey TakeButton(const FScriptCall& Call, int32 Index)
		{
			const FString Name = Call.GetString(Index, TEXT("Left"));
			const FKey Button(*(Name + TEXT("MouseButton")));
			if (!Button.IsValid())
			{
				Call.Fail(FString::Printf(TEXT("there is no mouse button '%s'"), *Name));
			}
			return Button;
		}

		int32 TakeSteps(const FScriptCall& Call, int32 Index)
		{
			const double Steps = Call.GetNumber(Index, FAutomationDriver::DragSteps);
			constexpr double MostSteps = 10000.0;
			if (!(Steps >= 1.0 && Steps <= MostSteps))
			{
				Call.Fail(TEXT("a drag has 1 to 10000 steps"));
			}
			return static_cast<int32>(Steps);
		}

		void CheckModifiers(const FScriptCall& Call, const FString& Modifiers)
		{
			TArray<FString> Names;
			Modifiers.ParseIntoArray(Names, TEXT("+"));
			for (const FString& Name : Names)
			{
				if (!Name.Equals(TEXT("Ctrl")) && !Name.Equals(TEXT("Shift")) && !Name.Equals(TEXT("Alt")))
				{
					Call.Fail(FString::Printf(TEXT("there is no modifier '%s'; there are Ctrl, Shift and Alt"), *Name));
				}
			}
		}
	}

	FVector2D FAutomationScript::TakePlace(const FScriptCall& Call, int32& Index)
	{
		if (Call.IsString(Index))
		{
			FVector2D Point;
			Require(Call, Driver.FindPoint(Call.GetString(Index++), Point));
			return Point;
		}
		const double X = Call.GetNumber(Index++);
		return FVector2D(X, Call.GetNumber(Index++));
	}

	void FAutomationScript::AddMouseFunctions()
	{
		Scripts.AddFunction(TEXT("Move"), [this](FScriptCall& Call)
		{
			int32 Index = 1;
			Driver.MoveTo(TakePlace(Call, Index));
		});
		Scripts.AddFunction(TEXT("Hover"), [this](FScriptCall& Call)
		{
			int32 Index = 1;
			Driver.MoveTo(TakePlace(Call, Index));
			Driver.Wait(Call.GetNumber(Index, FAutomationDriver::HoverTime));
		});
		Scripts.AddFunction(TEXT("Press"), [this](FScriptCall& Call) { Driver.Press(TakeButton(Call, 1)); });
		Scripts.AddFunction(TEXT("Release"), [this](FScriptCall& Call) { Driver.Release(TakeButton(Call, 1)); });
		Scripts.AddFunction(TEXT("Click"), [this](FScriptCall& Call)
		{
			int32 Index = 1;
			const FVector2D Place = TakePlace(Call, Index);
			Driver.SingleClickAt(Place, TakeButton(Call, Index));
		});
		Scripts.AddFunction(TEXT("DoubleClick"), [this](FScriptCall& Call)
		{
			int32 Index = 1;
			const FVector2D Place = TakePlace(Call, Index);
			Driver.DoubleClickAt(Place, TakeButton(Call, Index));
		});
		Scripts.AddFunction(TEXT("Drag"), [this](FScriptCall& Call)
		{
			int32 Index = 1;
			const FVector2D From = TakePlace(Call, Index);
			const FVector2D To = TakePlace(Call, Index);
			Driver.DragTo(From, To, TakeSteps(Call, Index));
		});
		Scripts.AddFunction(TEXT("DragBy"), [this](FScriptCall& Call)
		{
			int32 Index = 1;
			const FVector2D From = TakePlace(Call, Index);
			const FVector2D Offset(Call.GetNumber(Index), Call.GetNumber(Index + 1));
			Driver.DragTo(From, From + Offset, TakeSteps(Call, Index + 2));
		});
		Scripts.AddFunction(TEXT("Wheel"), [this](FScriptCall& Call)
		{
			int32 Index = 1;
			if (Call.NumArguments() > 1)
			{
				Driver.MoveTo(TakePlace(Call, Index));
			}
			Driver.Wheel(static_cast<float>(Call.GetNumber(Index)));
		});
	}

	void FAutomationScript::AddKeyboardFunctions()
	{
		Scripts.AddFunction(TEXT("Hold"), [this](FScriptCall& Call)
		{
			const FString Modifiers = Call.GetString(1, FString());
			CheckModifiers(Call, Modifiers);
			Driver.Hold(Modifiers);
		});
		Scripts.AddFunction(TEXT("Type"), [this](FScriptCall& Call) { Driver.Type(Call.GetString(1)); });
		Scripts.AddFunction(TEXT("Key"), [this](FScriptCall& Call)
		{
			const FKey Key(*Call.GetString(1));
			const FString Modifiers = Call.GetString(2, FString());
			if (!Key.IsValid())
			{
				Call.Fail(FString::Printf(TEXT("there is no key '%s'"), *Call.GetString(1)));
			}
			CheckModifiers(Call, Modifiers);
			Driver.PressKey(Key, Modifiers);
		});
		Scripts.AddFunction(TEXT("Focus"), [this](FScriptCall& Call) { Require(Call, Driver.Focus(Call.GetString(1))); });
	}
}
