#include "Host/SceneQualityVariables.h"

#include "HAL/IConsoleManager.h"

namespace Host
{
	namespace
	{
		const TCHAR* const ScreenPercentageName = TEXT("r.ScreenPercentage");
		const TCHAR* const AntiAliasingName = TEXT("sg.AntiAliasingQuality");
		const TCHAR* const ShadowsName = TEXT("sg.ShadowQuality");

		void ForEachVariable(TFunctionRef<void(IConsoleVariable&)> Visit)
		{
			for (const TCHAR* const Name : { ScreenPercentageName, AntiAliasingName, ShadowsName })
			{
				if (IConsoleVariable* const Variable = IConsoleManager::Get().FindConsoleVariable(Name))
				{
					Visit(*Variable);
				}
			}
		}

		int32 ReadLevel(const TCHAR* Name, int32 Default)
		{
			const IConsoleVariable* const Variable = IConsoleManager::Get().FindConsoleVariable(Name);
			return FMath::Clamp(Variable ? Variable->GetInt() : Default, 0, FSceneQuality::HighestLevel);
		}

		FSceneQuality Read()
		{
			FSceneQuality Quality;
			const IConsoleVariable* const Percentage = IConsoleManager::Get().FindConsoleVariable(ScreenPercentageName);
			if (Percentage && Percentage->GetFloat() > 0.0f)
			{
				Quality.ScreenPercentage = FMath::Clamp(Percentage->GetFloat(), FSceneQuality::LowestPercentage, FSceneQuality::HighestPercentage);
			}
			Quality.AntiAliasing = ReadLevel(AntiAliasingName, Quality.AntiAliasing);
			Quality.Shadows = ReadLevel(ShadowsName, Quality.Shadows);
			return Quality;
		}
	}

	FSceneQualityVariables::FSceneQualityVariables(FSimpleDelegate InOnChanged)
		: OnChanged(MoveTemp(InOnChanged))
		, Quality(Read())
	{
		ForEachVariable([this](IConsoleVariable& Variable) { Variable.OnChangedDelegate().AddRaw(this, &FSceneQualityVariables::OnVariableSet); });
	}

	FSceneQualityVariables::~FSceneQualityVariables()
	{
		ForEachVariable([this](IConsoleVariable& Variable) { Variable.OnChangedDelegate().RemoveAll(this); });
	}

	void FSceneQualityVariables::OnVariableSet(IConsoleVariable*)
	{
		if (const FSceneQuality New = Read(); !(New == Quality))
		{
			Quality = New;
			OnChanged.ExecuteIfBound();
		}
	}
}
