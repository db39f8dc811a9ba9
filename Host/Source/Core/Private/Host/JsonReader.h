#pragma once

#include "Host/JsonContent.h"

namespace Host
{
	/** Fills a document's content from text: listens to RapidJSON's events and finds each value's place in the text. */
	class FJsonReader
	{
	public:
		FJsonReader(FJsonContent& InContent, const FJsonLimits& InLimits);

		/** Reads the content's source. Returns false, with an error in the content, when the text is refused. */
		bool Read();

		/** Length of the byte order mark of UTF-8. */
		static constexpr uint32 MarkLength = 3;
		static bool StartsWithMark(const TArray<uint8>& Source);

	private:
		friend struct FJsonEvents;

		/** An array or object that is being read. */
		struct FOpen
		{
			uint32 Index;
			uint32 LastChild;
		};

		struct FNamedMember
		{
			SIZE_T Hash;
			uint32 Index;
		};

		/** Adds a value whose text ends before an offset; null when the document has too many. */
		FJsonValue* AddValue(EJsonKind Kind, SIZE_T EndOffset);
		/** Adds a number from its text, which ends before an offset. */
		bool AddNumber(SIZE_T EndOffset);
		bool Open(EJsonKind Kind, SIZE_T EndOffset);
		void Close(SIZE_T EndOffset);
		/** Refuses text with half of a surrogate pair, which the parser lets through. */
		bool CheckText(const char16_t* Text, SIZE_T Length);
		void SetKey(const char16_t* Text, SIZE_T Length, SIZE_T EndOffset);
		FJsonText AddText(const char16_t* Text, SIZE_T Length);

		void DropDuplicates(uint32 ObjectIndex);
		std::u16string_view GetKey(uint32 Index) const;

		/** Moves on to the start of the token that comes next. */
		void StepToToken();
		FString DescribePlace(SIZE_T SourceOffset) const;
		/** Adds an error at the place reached. Returns false. */
		bool Refuse(const TCHAR* Reason);
		void ReportSyntaxError(int32 Code, SIZE_T At);
		FString DescribeFound(SIZE_T At) const;

		FJsonContent& Content;
		const FJsonLimits Limits;
		const char* Text = nullptr;
		SIZE_T Size = 0;

		/** Where the text lies in the source. */
		uint32 TextStart = 0;

		/** How far the text has been read: the end of the last token, or the start of the next. */
		SIZE_T Offset = 0;
		/** Where the last value starts. */
		SIZE_T ValueStart = 0;

		std::vector<FOpen> OpenValues;
		FJsonText PendingKey;
		std::vector<FNamedMember> Members;
		bool bRefused = false;
	};
}
