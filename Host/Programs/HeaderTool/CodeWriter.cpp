#include "CodeWriter.h"

#include "CodeText.h"

namespace HeaderTool
{
	void FCode::Line(const std::string& Content)
	{
		if (!Content.empty())
		{
			Text.append(static_cast<size_t>(Depth), '\t');
			Text += Content;
		}
		Text += '\n';
	}

	void FCode::Open(const std::string& Content)
	{
		if (!Content.empty())
		{
			Line(Content);
		}
		Line("{");
		++Depth;
	}

	void FCode::Close(const std::string& Tail)
	{
		--Depth;
		Line("}" + Tail);
	}

	std::string WriteMetadata(FCode& Code, const std::string& Name, const FMetadata& Metadata)
	{
		if (Metadata.empty())
		{
			return "{}";
		}
		Code.Open("static constexpr Host::FMetaDataPair " + Name + "[] =");
		for (const auto& [Key, Value] : Metadata)
		{
			Code.Line("{" + MakeLiteral(Key) + ", " + MakeLiteral(Value) + "},");
		}
		Code.Close(";");
		return Name;
	}
} // namespace HeaderTool
