#pragma once

#include "CoreMinimal.h"
#include "Misc/DateTime.h"

namespace Host
{
	/** Sees when somebody writes, adds or removes a blueprint or a script under a mounted root. */
	class FContentWatch
	{
	public:
		/** From now on counts as unchanged. */
		void Start();

		/** Whether a file is another one than when this was asked last, or than at the start. */
		bool HasChanged();

	private:
		/** When each file was written. */
		using FStamps = TMap<FString, FDateTime>;

		static FStamps ReadStamps();

		FStamps Stamps;
	};
}
