#pragma once

#include "CoreMinimal.h"
#include "HAL/IConsoleManager.h"
#include "gtest/gtest.h"

namespace Host
{
	/** Puts a console variable's value back at its end, and the rank of its last setter. */
	class FRestoredVariable
	{
	public:
		explicit FRestoredVariable(const TCHAR* Name)
			: Variable(IConsoleManager::Get().FindConsoleVariable(Name))
		{
			EXPECT_NE(Variable, nullptr);
			Value = Variable->GetString();
			Flags = Variable->GetFlags();
		}

		~FRestoredVariable()
		{
			Variable->SetWithCurrentPriority(*Value);
			Variable->SetFlags(Flags);
		}

		FRestoredVariable(const FRestoredVariable&) = delete;
		FRestoredVariable& operator=(const FRestoredVariable&) = delete;

		IConsoleVariable* operator->() const { return Variable; }

	private:
		IConsoleVariable* const Variable;
		FString Value;
		EConsoleVariableFlags Flags = ECVF_Default;
	};
}
