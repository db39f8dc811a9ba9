#include "DefaultArgument.h"
#include "Keywords.h"
#include "Specifiers.h"

#include <cstdint>

/** Any bytes, read as a header by the part of the header tool that reads text itself: no crash and no endless loop. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	using namespace HeaderTool;

	const FSourceFile File("Fuzz.h", std::string(reinterpret_cast<const char*>(Data), Size));
	const std::string_view Text = File.GetText();
	FDiagnostics Diagnostics;
	for (size_t Offset = 0; Offset < Text.size();)
	{
		const std::string_view Word = File.GetIdentifierAt(Offset);
		if (Word.starts_with("U"))
		{
			for (const FSpecifier& Specifier : ReadSpecifiers(File, Offset, Diagnostics).Entries)
			{
				IsSpecifier(EMacro::Property, Specifier.Key);
				SuggestMetadataKey(Specifier.Key);
			}
			File.GetCommentBefore(Offset);
			File.GetConditionals(File.GetLine(Offset));
		}
		Offset += Word.empty() ? 1 : Word.size();
	}
	FParameter Parameter;
	Parameter.Default = Text;
	for (const ETypeKind Kind : {ETypeKind::Int32, ETypeKind::String, ETypeKind::Struct, ETypeKind::EnumClass})
	{
		std::string Converted;
		std::string Complaint;
		Parameter.Type.Kind = Kind;
		ConvertDefaultArgument(Parameter, Converted, Complaint);
	}
	Diagnostics.Format();
	return 0;
}
