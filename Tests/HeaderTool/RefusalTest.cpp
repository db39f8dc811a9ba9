// Each case is a header with one mistake. "//!" marks the line that the message must name.
#include "RefusalCases.h"
#include "ToolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

namespace
{
	int FindMarkedLine(const FRefusalCase& Case)
	{
		int Line = (Case.bWholeHeader ? 0 : FToolRun::NumPrologueLines) + 1;
		for (const char* Character = Case.Text; *Character; ++Character)
		{
			if (Character[0] == '/' && Character[1] == '/' && Character[2] == '!')
			{
				return Line;
			}
			Line += *Character == '\n' ? 1 : 0;
		}
		return 0;
	}

	/** One run over a group of cases: the tool goes on after a mistake, so each header gets its message. */
	void ExpectRefusals(const std::vector<FRefusalCase>& Cases)
	{
		FToolRun Run;
		for (const FRefusalCase& Case : Cases)
		{
			if (Case.bWholeHeader)
			{
				Run.AddHeader(Case.Name, Case.Text);
			}
			else
			{
				Run.AddBody(Case.Name, Case.Text);
			}
		}

		EXPECT_EQ(Run.Run(), 1);

		for (const FRefusalCase& Case : Cases)
		{
			const std::string Expected = std::to_string(FindMarkedLine(Case)) + ": error: " + Case.Message;
			EXPECT_EQ(Run.GetMessagesOf(Case.Name), std::vector<std::string>{Expected}) << Case.Name;
		}
	}
} // namespace

TEST(Refusal, OfMistakesInTheFile)
{
	ExpectRefusals(GetFileRefusals());
}

TEST(Refusal, OfClasses)
{
	ExpectRefusals(GetClassRefusals());
}

TEST(Refusal, OfStructuresAndEnumerations)
{
	ExpectRefusals(GetStructRefusals());
}

TEST(Refusal, OfProperties)
{
	ExpectRefusals(GetPropertyRefusals());
}

TEST(Refusal, OfFunctions)
{
	ExpectRefusals(GetFunctionRefusals());
}

TEST(Refusal, OfEvents)
{
	ExpectRefusals(GetEventRefusals());
}

TEST(Refusal, OfDelegates)
{
	ExpectRefusals(GetDelegateRefusals());
}

TEST(Refusal, OfSpecifiersAndMetadata)
{
	ExpectRefusals(GetSpecifierRefusals());
}

TEST(RefusalRun, WritesNothingWhenAHeaderIsRefused)
{
	FToolRun Run;
	Run.AddBody("Bad", "UCLASS()\nclass UBad : public UObject\n{\n};\n");
	Run.AddBody("Good", "UCLASS()\nclass UGood : public UObject\n{\n\tGENERATED_BODY()\n};\n");

	EXPECT_EQ(Run.Run(), 1);
	EXPECT_EQ(Run.ReadOutput("Good.generated.h"), "");
	EXPECT_EQ(Run.ReadOutput("ToolTest.gen.cpp"), "");
}

TEST(RefusalRun, CompilerErrorsAreReportedInTheSameForm)
{
	FToolRun Run;
	Run.AddBody("Broken",
		"UCLASS()\nclass UBroken : public UObject\n{\n\tGENERATED_BODY()\n\n\tUPROPERTY()\n\tFUnknownType Member;\n};\n");

	EXPECT_EQ(Run.Run(), 1);
	const std::vector<std::string> Messages = Run.GetMessagesOf("Broken");
	ASSERT_EQ(Messages.size(), 1u);
	EXPECT_EQ(Messages[0], "16: error: unknown type name 'FUnknownType'");
}

TEST(RefusalRun, AMissingHeaderFileIsNamed)
{
	FToolRun Run;
	Run.AddHeader("Missing", "#pragma once\n#include \"Nowhere.h\"\n#include \"Missing.generated.h\"\n");

	EXPECT_EQ(Run.Run(), 1);
	EXPECT_EQ(Run.GetMessagesOf("Missing"), std::vector<std::string>{"2: error: 'Nowhere.h' file not found"});
}

TEST(RefusalRun, DelegatesHaveAtMostNineParameters)
{
	FToolRun Run;
	Run.AddBody("Ten", "DECLARE_DYNAMIC_DELEGATE_TenParams(FTen, int32, A, int32, B, int32, C, int32, D, int32, E, int32, F, "
					   "int32, G, int32, H, int32, I, int32, J);\n");

	EXPECT_EQ(Run.Run(), 1);
	EXPECT_THAT(
		Run.GetMessagesOf("Ten"), testing::Contains("10: error: a dynamic delegate has at most nine parameters: pass a USTRUCT"));
}

TEST(RefusalRun, TypesWithACommaDoNotFitIntoADelegate)
{
	FToolRun Run;
	Run.AddBody("Comma", "DECLARE_DYNAMIC_DELEGATE_OneParam(FComma, TMap<FName, int32>, Values);\n");

	EXPECT_EQ(Run.Run(), 1);
	EXPECT_THAT(Run.GetMessagesOf("Comma"),
		testing::Contains("10: error: type and name of each parameter are arguments of their own: write (FName, Type1, Name1, "
						  "...); a type with a comma needs a USTRUCT around it"));
}

TEST(RefusalRun, ScriptNamesClashAcrossModulesToo)
{
	FToolRun Run;
	std::ofstream(Run.GetHeaderPath("Other")) << "#pragma once\n#include \"UObject/Object.h\"\n#include "
												 "\"Other.generated.h\"\nUSTRUCT()\nstruct FThing\n{\n\tGENERATED_BODY()\n};\n";
	Run.AddHeader("Mine", "#pragma once\n#include \"Other.h\"\n#include \"Mine.generated.h\"\nUCLASS()\nclass UThing : public "
						  "UObject\n{\n\tGENERATED_BODY()\n};\n");

	EXPECT_EQ(Run.Run(), 1);
	EXPECT_EQ(Run.GetMessagesOf("Mine"),
		std::vector<std::string>{"5: error: UThing and FThing (Other.h:5) have one script name: rename one of them"});
}
