#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Host/SceneRenderer.h"

class IConsoleVariable;

namespace Host
{
	/**
	 * What the console variables say of a scene's quality: r.ScreenPercentage (0 or less for 100, else cut to 25 up to 200),
	 * sg.AntiAliasingQuality and sg.ShadowQuality (each cut to 0 up to 4).
	 */
	class FSceneQualityVariables
	{
	public:
		/** @param InOnChanged	called when one of them leads to another quality */
		explicit FSceneQualityVariables(FSimpleDelegate InOnChanged);
		~FSceneQualityVariables();
		FSceneQualityVariables(const FSceneQualityVariables&) = delete;
		FSceneQualityVariables& operator=(const FSceneQualityVariables&) = delete;

		const FSceneQuality& Get() const { return Quality; }

	private:
		void OnVariableSet(IConsoleVariable*);

		FSimpleDelegate OnChanged;
		FSceneQuality Quality;
	};
}
