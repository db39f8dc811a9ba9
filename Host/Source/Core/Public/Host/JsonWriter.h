#pragma once

#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

#include <memory>

namespace Host
{
	/**
	 * Writes JSON text for people to read: one member a line, indented by tabs.
	 * The calls follow the structure of the text; a call out of place is an assertion failure.
	 */
	class FJsonWriter
	{
	public:
		CORE_API FJsonWriter();
		CORE_API ~FJsonWriter();
		FJsonWriter(const FJsonWriter&) = delete;
		FJsonWriter& operator=(const FJsonWriter&) = delete;

		CORE_API void BeginObject();
		CORE_API void EndObject();
		CORE_API void BeginArray();
		CORE_API void EndArray();
		/** Names the next value, inside an object. */
		CORE_API void Key(FStringView Name);

		CORE_API void Null();
		CORE_API void Bool(bool bValue);
		CORE_API void Integer(int64 Value);
		/** The shortest text that reads back as the same number; null for what is no finite number, as JSON has no word for it. */
		CORE_API void Number(double Value);
		CORE_API void String(FStringView Value);

		/** The text, ended by a line break. The outermost value must be complete. */
		CORE_API FString ToString() const;

	private:
		struct FImplementation;
		std::unique_ptr<FImplementation> Implementation;
	};
}
