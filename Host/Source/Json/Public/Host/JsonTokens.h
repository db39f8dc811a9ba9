#pragma once

#include "Containers/StringView.h"
#include "Serialization/JsonTypes.h"

namespace Host
{
	/** The nearest double to the text of a number; infinity when it is too large, 0 when too close to it. */
	JSON_API double JsonNumber(FUtf8StringView Text);

	/** Decodes UTF-8 into a string whose memory is used again. */
	JSON_API void JsonText(FString& Out, FUtf8StringView Text);

	/** A string as UTF-8, without a terminator. */
	JSON_API TArray<UTF8CHAR> JsonBytes(const FString& Text);

	/**
	 * Reads a JSON text (RFC 8259) token by token, without a copy of it and without recursion. The outermost value is an array
	 * or an object. Reading stops at the first error; what was read before it counts.
	 */
	class JSON_API FJsonTokens
	{
	public:
		/** Arrays and objects inside each other that are accepted. */
		static constexpr int32 MaxDepth = 64;

		/** The text is UTF-8 and outlives the reader; a byte order mark is skipped. */
		explicit FJsonTokens(FUtf8StringView InText);

		/** Reads the next token. False at the end of the text, and, with the notation of an error, where the text is wrong. */
		bool Next(EJsonNotation& OutNotation);

		/** Name of the member that the token is the value of; empty for others. Both views are valid until the next token. */
		FUtf8StringView GetName() const { return Name; }

		/** Content of a string without its escapes, or the text of a number. Bytes that are no UTF-8 stay as they are. */
		FUtf8StringView GetText() const { return Text; }

		bool GetBoolean() const { return bBoolean; }

		/** What was expected and what was found; empty while nothing was wrong. */
		const FString& GetError() const { return Error; }

		/** Where the last token, or the error, starts: both are counted from 1, the column in code points. */
		int32 GetLine() const;
		int32 GetColumn() const;

	private:
		enum class EExpected : uint8
		{
			/** The outermost value. */
			Root,
			/** A member, or the end of an object that has none yet. */
			FirstMember,
			/** An element, or the end of an array that has none yet. */
			FirstElement,
			/** A comma or the end of what is open. */
			CommaOrEnd,
			Nothing
		};

		bool ReadMember(EJsonNotation& OutNotation);
		bool ReadValue(EJsonNotation& OutNotation);
		bool ReadString(TArray<UTF8CHAR>& Scratch, FUtf8StringView& OutText);
		bool ReadEscape(TArray<UTF8CHAR>& Scratch);
		bool ReadHex(uint32& OutUnit);
		bool ReadNumber();
		bool ReadWord(const char* Word);
		bool Open(bool bObject);
		bool Close();
		void SkipSpace();
		bool Fail(const TCHAR* Expected);
		void FindPlace() const;

		const UTF8CHAR* const First;
		const UTF8CHAR* const End;
		const UTF8CHAR* At;
		/** Where the last token starts. */
		const UTF8CHAR* TokenStart;

		FUtf8StringView Name;
		FUtf8StringView Text;
		bool bBoolean = false;
		FString Error;
		EExpected Expected = EExpected::Root;
		/** What is open, outermost first: true for an object. */
		TArray<bool, TInlineAllocator<MaxDepth>> OpenValues;
		/** For names and strings with escapes. */
		TArray<UTF8CHAR> NameScratch;
		TArray<UTF8CHAR> TextScratch;

		/** The place asked for last, from which the next one is counted. */
		mutable const UTF8CHAR* Counted;
		mutable const UTF8CHAR* LineStart;
		mutable int32 Line = 1;
	};
}
