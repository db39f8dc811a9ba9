#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/**
	 * Announces warnings or errors: a test that logs one which it did not announce fails, and so does one whose announced line
	 * did not come. Lives as long as the lines may come.
	 */
	class FExpectedLog
	{
	public:
		/** For lines of which it does not matter how often they come, if at all. */
		static constexpr int32 AnyCount = -1;

		/** @param InPart what the line contains, compared case-sensitively; @param InCount how often exactly it comes */
		explicit FExpectedLog(const TCHAR* InPart, int32 InCount = 1);
		~FExpectedLog();
		FExpectedLog(const FExpectedLog&) = delete;
		FExpectedLog& operator=(const FExpectedLog&) = delete;

		/** How many such lines came so far. */
		int32 GetCount() const { return Count; }

		/** The last such line; empty before the first. */
		const FString& GetLastLine() const { return LastLine; }

	private:
		friend class FTestLogWatch;

		FString Part;
		FString LastLine;
		int32 ExpectedCount;
		int32 Count = 0;
	};
}
