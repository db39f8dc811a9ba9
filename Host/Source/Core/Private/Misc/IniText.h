#pragma once

#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

namespace Host
{
	enum class EIniLine : uint8
	{
		/** Blank, or a comment after ';' or '#'. */
		Remark,
		Section,
		Entry,
		/** None of these: it has no effect. */
		Fault
	};

	/** One line of a configuration file. */
	struct FIniLine
	{
		/** As it stands in the file. */
		FString Text;
		EIniLine Kind = EIniLine::Remark;
		/** The section that the line names, or stands in. */
		FString Section;
		FString Key;
		FString Value;
		/** What an entry does: '+', '-', '.', '!', or 0 for a plain value. */
		TCHAR Operation = 0;
		/** What is wrong with a fault. */
		const TCHAR* Reason = nullptr;
	};

	/** Reads a line by itself: an entry gets no section. */
	FIniLine ParseIniLine(FStringView Text);

	/** Makes the line of an entry. */
	FIniLine MakeIniEntry(const FString& Section, const FString& Key, const FString& Value, TCHAR Operation = 0);

	/** Makes the line that starts a section. */
	FIniLine MakeIniSection(const FString& Section);
}
