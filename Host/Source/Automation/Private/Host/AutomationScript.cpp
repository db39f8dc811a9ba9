#include "Host/AutomationScript.h"

#include "Components/Widget.h"
#include "Host/PropertyEdit.h"

namespace Host
{
	namespace
	{
		/** Seconds that a script waits for something unless it says how many. */
		constexpr double DefaultWait = 5.0;
	}

	FAutomationScript::FAutomationScript(FEngineLoop& Loop)
		: Driver(Loop)
	{
		AddLookingFunctions();
		AddMouseFunctions();
		AddKeyboardFunctions();
		AddTimeFunctions();
		AddPictureFunctions();
	}

	bool FAutomationScript::RunFile(const FString& Filename)
	{
		return Scripts.RunFile(Filename);
	}

	void FAutomationScript::Require(const FScriptCall& Call, bool bDone) const
	{
		if (!bDone)
		{
			Call.Fail(Driver.GetError());
		}
	}

	void FAutomationScript::AddLookingFunctions()
	{
		Scripts.AddFunction(TEXT("Find"), [this](FScriptCall& Call)
		{
			const FString Locator = Call.GetString(1);
			const UWidget* Widget = Driver.FindOne(Locator);
			if (!Widget && Driver.Count(Locator) > 1)
			{
				Call.Fail(Driver.GetError());
			}
			Call.Return(static_cast<const UObject*>(Widget));
		});
		Scripts.AddFunction(TEXT("Count"), [this](FScriptCall& Call) { Call.Return(Driver.Count(Call.GetString(1))); });
		Scripts.AddFunction(TEXT("Read"), [this](FScriptCall& Call)
		{
			UWidget* Widget = Driver.FindOne(Call.GetString(1));
			Require(Call, Widget != nullptr);
			const FProperty* Property = nullptr;
			const void* Value = nullptr;
			FString Reason;
			if (!FPropertyEdit::FindValue(Widget, Call.GetString(2), Property, Value, Reason))
			{
				Call.Fail(Reason);
			}
			Call.Return(*Property, Value);
		});
	}

	void FAutomationScript::AddTimeFunctions()
	{
		Scripts.AddFunction(TEXT("Wait"), [this](FScriptCall& Call) { Driver.Wait(Call.GetNumber(1)); });
		Scripts.AddFunction(TEXT("WaitUntil"), [this](FScriptCall& Call)
		{
			if (!Driver.WaitUntil([&Call] { return Call.CallCondition(1); }, Call.GetNumber(2, DefaultWait)))
			{
				Call.Fail(FString::Printf(TEXT("what was waited for did not come within %g seconds"), Call.GetNumber(2, DefaultWait)));
			}
		});
		Scripts.AddFunction(TEXT("WaitFor"), [this](FScriptCall& Call) { Require(Call, Driver.WaitFor(Call.GetString(1), Call.GetNumber(2, DefaultWait))); });
		Scripts.AddFunction(TEXT("Expect"), [](FScriptCall& Call)
		{
			if (!Call.IsTrue(1))
			{
				Call.Fail(Call.GetString(2, TEXT("an expectation does not hold")));
			}
		});
	}

	void FAutomationScript::AddPictureFunctions()
	{
		Scripts.AddFunction(TEXT("Picture"), [this](FScriptCall& Call)
		{
			FString Error;
			if (!Driver.TakePicture(Call.GetString(1), Error))
			{
				Call.Fail(Error);
			}
		});
		Scripts.AddFunction(TEXT("PictureOf"), [this](FScriptCall& Call) { Require(Call, Driver.TakePictureOf(Call.GetString(1), Call.GetString(2))); });
	}
}
