#include "Host/AutomationScript.h"

#include "Components/Widget.h"

namespace Host
{
	FAutomationScript::FAutomationScript(FEngineLoop& Loop)
		: Driver(Loop)
	{
		AddMouseFunctions();
		AddKeyboardFunctions();
		AddFlowFunctions();
	}

	bool FAutomationScript::RunFile(const FString& Filename)
	{
		return Scripts.RunFile(Filename);
	}

	FVector2D FAutomationScript::GetPlace(const FScriptCall& Call) const
	{
		if (!Call.IsString(1))
		{
			return FVector2D(Call.GetNumber(1), Call.GetNumber(2));
		}
		const FString Locator = Call.GetString(1);
		const UWidget* Widget = Driver.Find(Locator);
		if (!Widget)
		{
			Call.Fail(FString::Printf(TEXT("there is no widget '%s'"), *Locator));
		}
		return Driver.GetMiddle(*Widget);
	}

	void FAutomationScript::AddMouseFunctions()
	{
		Scripts.AddFunction(TEXT("Move"), [this](FScriptCall& Call) { Driver.MoveTo(GetPlace(Call)); });
		Scripts.AddFunction(TEXT("Press"), [this](FScriptCall&) { Driver.Press(); });
		Scripts.AddFunction(TEXT("Release"), [this](FScriptCall&) { Driver.Release(); });
		Scripts.AddFunction(TEXT("Click"), [this](FScriptCall& Call) { Driver.ClickAt(GetPlace(Call)); });
		Scripts.AddFunction(TEXT("Wheel"), [this](FScriptCall& Call) { Driver.Wheel(static_cast<float>(Call.GetNumber(1))); });
	}

	void FAutomationScript::AddKeyboardFunctions()
	{
		Scripts.AddFunction(TEXT("Type"), [this](FScriptCall& Call) { Driver.Type(Call.GetString(1)); });
		Scripts.AddFunction(TEXT("Key"), [this](FScriptCall& Call)
		{
			const FKey Key(*Call.GetString(1));
			if (!Key.IsValid())
			{
				Call.Fail(FString::Printf(TEXT("there is no key '%s'"), *Call.GetString(1)));
			}
			Driver.PressKey(Key, Call.GetString(2, FString()));
		});
	}

	void FAutomationScript::AddFlowFunctions()
	{
		Scripts.AddFunction(TEXT("Find"), [this](FScriptCall& Call) { Call.Return(static_cast<const UObject*>(Driver.Find(Call.GetString(1)))); });
		Scripts.AddFunction(TEXT("Wait"), [this](FScriptCall& Call) { Driver.Wait(Call.GetNumber(1)); });
		Scripts.AddFunction(TEXT("WaitUntil"), [this](FScriptCall& Call)
		{
			constexpr double DefaultSeconds = 5.0;
			if (!Driver.WaitUntil([&Call] { return Call.CallCondition(1); }, Call.GetNumber(2, DefaultSeconds)))
			{
				Call.Fail(TEXT("what was waited for did not come"));
			}
		});
		Scripts.AddFunction(TEXT("Expect"), [](FScriptCall& Call)
		{
			if (!Call.IsTrue(1))
			{
				Call.Fail(Call.GetString(2, TEXT("an expectation does not hold")));
			}
		});
		Scripts.AddFunction(TEXT("Picture"), [this](FScriptCall& Call)
		{
			FString Error;
			if (!Driver.TakePicture(Call.GetString(1), Error))
			{
				Call.Fail(Error);
			}
		});
	}
}
