#pragma once

#include "CoreMinimal.h"
#include "HAL/IConsoleManager.h"

namespace Host
{
	/** Sets console variables, and puts their values back in the end. */
	class FSceneVariables
	{
	public:
		~FSceneVariables()
		{
			for (const TPair<FString, FString>& Entry : Old)
			{
				Find(*Entry.Key).SetWithCurrentPriority(*Entry.Value);
			}
		}

		void Set(const TCHAR* Name, const TCHAR* Value)
		{
			if (!Old.Contains(Name))
			{
				Old.Add(Name, Find(Name).GetString());
			}
			Find(Name).SetWithCurrentPriority(Value);
		}

	private:
		static IConsoleVariable& Find(const TCHAR* Name)
		{
			IConsoleVariable* const Variable = IConsoleManager::Get().FindConsoleVariable(Name);
			checkf(Variable, TEXT("there is no variable %s"), Name);
			return *Variable;
		}

		TMap<FString, FString> Old;
	};
}
