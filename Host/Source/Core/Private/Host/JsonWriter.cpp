// The library's own assertions and the engine's macros must not meet: it comes first.
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include "Host/JsonWriter.h"

#include "Containers/StringConv.h"
#include "Misc/AssertionMacros.h"

#include <cmath>
#include <vector>

namespace Host
{
	struct FJsonWriter::FImplementation
	{
		rapidjson::StringBuffer Buffer;
		rapidjson::PrettyWriter<rapidjson::StringBuffer> Writer{Buffer};

		/** The arrays and objects that are open, outermost first; true for an object. */
		std::vector<bool> Open;
		bool bKeyGiven = false;
		bool bComplete = false;

		FImplementation()
		{
			Writer.SetIndent('\t', 1);
		}

		void BeforeValue()
		{
			checkf(!bComplete, TEXT("The text has its one outermost value already"));
			checkf(Open.empty() || !Open.back() || bKeyGiven, TEXT("A value in an object needs a key"));
			bKeyGiven = false;
		}

		void AfterValue()
		{
			bComplete = Open.empty();
		}

		void End(bool bObject)
		{
			checkf(!Open.empty() && Open.back() == bObject && !bKeyGiven, TEXT("Nothing of this kind can end here"));
			Open.pop_back();
			AfterValue();
		}
	};

	FJsonWriter::FJsonWriter()
		: Implementation(std::make_unique<FImplementation>())
	{
	}

	FJsonWriter::~FJsonWriter() = default;

	void FJsonWriter::BeginObject()
	{
		Implementation->BeforeValue();
		Implementation->Open.push_back(true);
		Implementation->Writer.StartObject();
	}

	void FJsonWriter::EndObject()
	{
		Implementation->End(true);
		Implementation->Writer.EndObject();
	}

	void FJsonWriter::BeginArray()
	{
		Implementation->BeforeValue();
		Implementation->Open.push_back(false);
		Implementation->Writer.StartArray();
	}

	void FJsonWriter::EndArray()
	{
		Implementation->End(false);
		Implementation->Writer.EndArray();
	}

	void FJsonWriter::Key(FStringView Name)
	{
		checkf(!Implementation->Open.empty() && Implementation->Open.back() && !Implementation->bKeyGiven, TEXT("A key stands inside an object, before a value"));
		Implementation->bKeyGiven = true;
		const FTCHARToUTF8 Utf8(Name.GetData(), Name.Len());
		Implementation->Writer.Key(Name.IsEmpty() ? "" : Utf8.Get(), rapidjson::SizeType(Utf8.Length()));
	}

	void FJsonWriter::Null()
	{
		Implementation->BeforeValue();
		Implementation->Writer.Null();
		Implementation->AfterValue();
	}

	void FJsonWriter::Bool(bool bValue)
	{
		Implementation->BeforeValue();
		Implementation->Writer.Bool(bValue);
		Implementation->AfterValue();
	}

	void FJsonWriter::Integer(int64 Value)
	{
		Implementation->BeforeValue();
		Implementation->Writer.Int64(Value);
		Implementation->AfterValue();
	}

	void FJsonWriter::Number(double Value)
	{
		if (!std::isfinite(Value))
		{
			Null();
			return;
		}
		Implementation->BeforeValue();
		Implementation->Writer.Double(Value);
		Implementation->AfterValue();
	}

	void FJsonWriter::String(FStringView Value)
	{
		Implementation->BeforeValue();
		const FTCHARToUTF8 Utf8(Value.GetData(), Value.Len());
		Implementation->Writer.String(Value.IsEmpty() ? "" : Utf8.Get(), rapidjson::SizeType(Utf8.Length()));
		Implementation->AfterValue();
	}

	FString FJsonWriter::ToString() const
	{
		checkf(Implementation->bComplete, TEXT("The outermost value is not complete"));
		FString Text(FUTF8ToTCHAR(Implementation->Buffer.GetString(), int32(Implementation->Buffer.GetSize())).Get());
		Text += TEXT("\n");
		return Text;
	}
}
