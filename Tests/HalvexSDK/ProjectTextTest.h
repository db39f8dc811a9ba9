#pragma once

#include "EngineTest.h"

#include "Project/ProjectReader.h"

/** Reads texts of projects. */
class FProjectTextTest : public testing::Test
{
protected:
	bool Read(const std::string& Text)
	{
		Problems = MakeUnique<FReadProblems>(TEXT("project.json"));
		return FProjectReader::ReadBytes(MakeArrayView(reinterpret_cast<const uint8*>(Text.data()), int32(Text.size())), Project, *Problems);
	}

	/** The messages, a line each. */
	std::string Messages() const
	{
		std::string All;
		for (const FString& Message : Problems->GetMessages())
		{
			All += Host::ToStd(Message) + "\n";
		}
		return All;
	}

	FProjectData Project;
	TUniquePtr<FReadProblems> Problems;
};
