#include "Project/JsonRoot.h"

#include "Dom/JsonObject.h"
#include "Project/ReadProblems.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"

TSharedPtr<FJsonObject> FJsonRoot::Read(const FString& Text, FReadProblems& Problems)
{
	TSharedPtr<FJsonObject> Root;
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(Text);
	if (FJsonSerializer::Deserialize(Reader, Root))
	{
		return Root;
	}
	const FString& Message = Reader->GetErrorMessage();
	Problems.Add(Reader->GetLineNumber(), Reader->GetCharacterNumber(), Message.IsEmpty() ? FString(TEXT("expected an object")) : Message);
	return nullptr;
}
