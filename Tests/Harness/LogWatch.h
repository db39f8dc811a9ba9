#pragma once

#include "CoreMinimal.h"
#include "Host/LogSink.h"

namespace Host
{
	class FExpectedLog;

	/** Makes the log part of every assertion: an unannounced warning or error fails the running test. */
	class FTestLogWatch final : public FLogSink
	{
	public:
		static FTestLogWatch& Get();

		virtual void Write(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Message, const char* File, int32 Line) override;

		void Announce(FExpectedLog& Expected);
		void Withdraw(FExpectedLog& Expected);

	private:
		TArray<FExpectedLog*> Announced;
	};
}
