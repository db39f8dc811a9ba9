#include "HAL/IConsoleManager.h"

#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "Misc/StringOutputDevice.h"
#include "TestText.h"
#include "gtest/gtest.h"

using Host::FExpectedLog;

DEFINE_LOG_CATEGORY_STATIC(LogConsoleTest, Log, All);

namespace
{
	IConsoleManager& Console()
	{
		return IConsoleManager::Get();
	}

	/** What the console answers to a line. */
	std::string Type(const TCHAR* Input)
	{
		FStringOutputDevice Out;
		EXPECT_TRUE(Console().ProcessUserConsoleInput(Input, Out, nullptr));
		return ToUtf8(Out);
	}
}

// A value outlives its variable, so every test has names of its own.
TEST(ConsoleManagerTest, AVariableIsFoundByItsNameInAnyCase)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number1"), 5, TEXT("A number."));
	EXPECT_EQ(Variable.AsVariable(), Console().FindConsoleVariable(TEXT("TEST.number1")));
	EXPECT_EQ(nullptr, Console().FindConsoleVariable(TEXT("test.Nothing")));
	EXPECT_EQ("A number.", ToUtf8(Variable.AsVariable()->GetHelp()));
}

TEST(ConsoleManagerTest, AVariableIsGoneWithItsOwner)
{
	{
		const TAutoConsoleVariable<int32> Variable(TEXT("test.Number2"), 5, TEXT(""));
	}
	EXPECT_EQ(nullptr, Console().FindConsoleVariable(TEXT("test.Number2")));
}

TEST(ConsoleManagerTest, ValuesAreReadAsAnyType)
{
	const TAutoConsoleVariable<float> Variable(TEXT("test.Float"), 2.5f, TEXT(""));
	EXPECT_EQ(2.5f, Variable->GetFloat());
	EXPECT_EQ(2, Variable->GetInt());
	EXPECT_TRUE(Variable->GetBool());
	EXPECT_EQ("2.5", ToUtf8(Variable->GetString()));
	EXPECT_TRUE(Variable->IsVariableFloat());
}

TEST(ConsoleManagerTest, SettersTakeEveryType)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number4"), 0, TEXT(""));
	Variable->Set(7);
	EXPECT_EQ(7, Variable.GetValueOnGameThread());
	Variable->Set(8.9f);
	EXPECT_EQ(8, Variable.GetValueOnGameThread());
	Variable->Set(true);
	EXPECT_EQ(1, Variable.GetValueOnGameThread());
	Variable->Set(TEXT("-3"));
	EXPECT_EQ(-3, Variable.GetValueOnGameThread());
	EXPECT_EQ("0", ToUtf8(Variable->GetDefaultValue()));
}

TEST(ConsoleManagerTest, WordsStandForTruths)
{
	const TAutoConsoleVariable<bool> Variable(TEXT("test.Bool"), false, TEXT(""));
	for (const TCHAR* const Word : {TEXT("true"), TEXT("On"), TEXT("YES"), TEXT("1"), TEXT("2")})
	{
		Variable->Set(false);
		Variable->Set(Word);
		EXPECT_TRUE(Variable.GetValueOnGameThread()) << TCHAR_TO_UTF8(Word);
	}
	for (const TCHAR* const Word : {TEXT("false"), TEXT("off"), TEXT("No"), TEXT("0")})
	{
		Variable->Set(true);
		Variable->Set(Word);
		EXPECT_FALSE(Variable.GetValueOnGameThread()) << TCHAR_TO_UTF8(Word);
	}
}

TEST(ConsoleManagerTest, AReferenceVariableChangesTheValueItself)
{
	int32 Value = 3;
	const FAutoConsoleVariableRef Variable(TEXT("test.Ref"), Value, TEXT(""));
	Variable->Set(4);
	EXPECT_EQ(4, Value);
	Value = 5;
	EXPECT_EQ(5, Variable->GetInt());
}

TEST(ConsoleManagerTest, ALowerRankIsIgnoredWithAWarning)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number7"), 1, TEXT(""));
	Variable->Set(2, ECVF_SetByConsole);
	const FExpectedLog Expected(TEXT("Setting the console variable 'test.Number7' to '3' by 'Code' was ignored: it was set by 'Console'"));
	Variable->Set(3, ECVF_SetByCode);
	EXPECT_EQ(2, Variable->GetInt());
}

TEST(ConsoleManagerTest, TheSameOrAHigherRankSets)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number8"), 1, TEXT(""));
	Variable->Set(2, ECVF_SetByScalability);
	Variable->Set(3, ECVF_SetByScalability);
	Variable->Set(4, ECVF_SetByProjectSetting);
	EXPECT_EQ(4, Variable->GetInt());
	EXPECT_TRUE((uint32(Variable->GetFlags()) & ECVF_SetByMask) == ECVF_SetByProjectSetting);
}

TEST(ConsoleManagerTest, RanksAreOrderedAsDocumented)
{
	static_assert(ECVF_SetByConstructor < ECVF_SetByScalability);
	static_assert(ECVF_SetByScalability < ECVF_SetByGameSetting);
	static_assert(ECVF_SetByGameSetting < ECVF_SetByProjectSetting);
	static_assert(ECVF_SetByProjectSetting < ECVF_SetBySystemSettingsIni);
	static_assert(ECVF_SetByConsoleVariablesIni < ECVF_SetByCommandline);
	static_assert(ECVF_SetByCommandline < ECVF_SetByCode);
	static_assert(ECVF_SetByCode < ECVF_SetByConsole);
}

TEST(ConsoleManagerTest, TextThatIsNoSuchValueIsRefusedWithAWarning)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number10"), 1, TEXT(""));
	const FExpectedLog Expected(TEXT("expected a number"));
	Variable->Set(TEXT("many"));
	EXPECT_EQ(1, Variable->GetInt());
}

TEST(ConsoleManagerTest, ListenersHearEveryAcceptedSet)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number11"), 1, TEXT(""));
	int32 Calls = 0;
	int32 Last = 0;
	Variable->SetOnChangedCallback(FConsoleVariableDelegate::CreateLambda([&](IConsoleVariable* Changed) { ++Calls; Last = Changed->GetInt(); }));
	Variable->OnChangedDelegate().AddLambda([&](IConsoleVariable*) { ++Calls; });
	Variable->Set(1);
	Variable->Set(9);
	EXPECT_EQ(4, Calls);
	EXPECT_EQ(9, Last);
}

TEST(ConsoleManagerTest, AValueIsKeptWhileItsVariableIsUnregistered)
{
	{
		const TAutoConsoleVariable<FString> Variable(TEXT("test.Text12"), FString(TEXT("a")), TEXT(""));
		Variable->Set(TEXT("b"), ECVF_SetByConsole);
	}
	{
		const TAutoConsoleVariable<FString> Variable(TEXT("test.Text12"), FString(TEXT("a")), TEXT(""));
		EXPECT_EQ("b", ToUtf8(Variable.GetValueOnGameThread()));
		EXPECT_EQ("a", ToUtf8(Variable->GetDefaultValue()));
		Console().UnregisterConsoleObject(TEXT("test.Text12"), false);
	}
	const TAutoConsoleVariable<FString> Variable(TEXT("test.Text12"), FString(TEXT("a")), TEXT(""));
	EXPECT_EQ("a", ToUtf8(Variable.GetValueOnGameThread()));
}

TEST(ConsoleManagerTest, ANameTakenTwiceIsAWarning)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number13"), 1, TEXT(""));
	const FExpectedLog Expected(TEXT("'test.Number13' is registered twice"), 2);
	EXPECT_EQ(Variable.AsVariable(), Console().RegisterConsoleVariable(TEXT("test.Number13"), 2, TEXT("")));
	EXPECT_EQ(nullptr, Console().RegisterConsoleCommand(TEXT("test.Number13"), TEXT(""), FConsoleCommandDelegate()));
	EXPECT_EQ(1, Variable->GetInt());
}

TEST(ConsoleManagerTest, TypingANameShowsTheVariable)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number14"), 5, TEXT("A number."));
	EXPECT_EQ("test.Number14 = \"5\"  LastSetBy: Constructor\n", Type(TEXT(" test.Number14 ")));
	EXPECT_EQ("test.Number14: A number.\n", Type(TEXT("test.Number14 ?")));
}

TEST(ConsoleManagerTest, TypingAValueSetsWithTheConsolesRank)
{
	const TAutoConsoleVariable<FString> Variable(TEXT("test.Text15"), FString(), TEXT(""));
	EXPECT_EQ("test.Text15 = \"two words\"  LastSetBy: Console\n", Type(TEXT("test.text15 \"two words\"")));
	EXPECT_EQ("two words", ToUtf8(Variable->GetString()));
}

TEST(ConsoleManagerTest, AReadOnlyVariableIsNotSetByTheConsole)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number16"), 5, TEXT(""), ECVF_ReadOnly);
	EXPECT_EQ("test.Number16 is read only\n", Type(TEXT("test.Number16 6")));
	EXPECT_EQ(5, Variable->GetInt());
}

TEST(ConsoleManagerTest, ACommandGetsItsArguments)
{
	TArray<FString> Got;
	const FAutoConsoleCommand Command(TEXT("test.Do"), TEXT("Does."), FConsoleCommandWithArgsAndOutputDeviceDelegate::CreateLambda([&](const TArray<FString>& Args, FOutputDevice& Out)
	{
		Got = Args;
		Out.Logf(TEXT("%d arguments"), Args.Num());
	}));
	EXPECT_EQ("3 arguments\n", Type(TEXT("test.Do one \"two words\" a\\\"b")));
	ASSERT_EQ(3, Got.Num());
	EXPECT_EQ("two words", ToUtf8(Got[1]));
	EXPECT_EQ("Does.", ToUtf8(Console().FindConsoleObject(TEXT("test.Do"))->GetHelp()));
	EXPECT_EQ(nullptr, Console().FindConsoleVariable(TEXT("test.Do")));
}

TEST(ConsoleManagerTest, APlainCommandRuns)
{
	int32 Calls = 0;
	const FAutoConsoleCommand Command(TEXT("test.Do"), TEXT(""), FConsoleCommandDelegate::CreateLambda([&]() { ++Calls; }));
	EXPECT_EQ("", Type(TEXT("TEST.DO")));
	EXPECT_EQ(1, Calls);
}

TEST(ConsoleManagerTest, ACommandMayUnregisterItself)
{
	Console().RegisterConsoleCommand(TEXT("test.Once"), TEXT(""), FConsoleCommandDelegate::CreateLambda([]() { Console().UnregisterConsoleObject(TEXT("test.Once")); }));
	Type(TEXT("test.Once"));
	EXPECT_EQ(nullptr, Console().FindConsoleObject(TEXT("test.Once")));
}

TEST(ConsoleManagerTest, AnUnknownWordIsNotHandled)
{
	FStringOutputDevice Out;
	EXPECT_FALSE(Console().ProcessUserConsoleInput(TEXT("test.Nothing 1"), Out, nullptr));
	EXPECT_FALSE(Console().ProcessUserConsoleInput(TEXT("   "), Out, nullptr));
	EXPECT_TRUE(Out.IsEmpty());
}

TEST(ConsoleManagerTest, ObjectsAreVisitedInAlphabeticalOrder)
{
	const TAutoConsoleVariable<int32> B(TEXT("test.visit.B"), 1, TEXT(""));
	const TAutoConsoleVariable<int32> A(TEXT("test.Visit.a"), 1, TEXT(""));
	FString Names;
	const auto Visit = [&](const TCHAR* Name, IConsoleObject*) { Names += Name; };
	Console().ForEachConsoleObjectThatStartsWith(FConsoleObjectVisitor::CreateLambda(Visit), TEXT("TEST.visit."));
	EXPECT_EQ("test.Visit.atest.visit.B", ToUtf8(Names));
	Names.Empty();
	Console().ForEachConsoleObjectThatContains(FConsoleObjectVisitor::CreateLambda(Visit), TEXT("visit.b"));
	EXPECT_EQ("test.visit.B", ToUtf8(Names));
}

TEST(ConsoleManagerTest, TheLogCommandSetsACategorysVerbosity)
{
	EXPECT_EQ("LogConsoleTest VeryVerbose\n", Type(TEXT("Log LogConsoleTest VeryVerbose")));
	EXPECT_EQ(ELogVerbosity::VeryVerbose, LogConsoleTest.GetVerbosity());
	EXPECT_EQ("LogConsoleTest Log\n", Type(TEXT("log logconsoletest default")));
	EXPECT_EQ("There is no log category 'LogNothing'\n", Type(TEXT("Log LogNothing Error")));
	EXPECT_NE(std::string::npos, Type(TEXT("Log LogConsoleTest Loud")).find("There is no verbosity 'Loud'"));
	EXPECT_NE(std::string::npos, Type(TEXT("Log list")).find("LogConsoleTest Log\n"));
}

TEST(ConsoleManagerTest, DumpingListsNamesWithTheirHelp)
{
	const TAutoConsoleVariable<int32> Variable(TEXT("test.Number23"), 5, TEXT("A number."));
	EXPECT_EQ("test.Number23 = \"5\"  A number.\n", Type(TEXT("DumpConsoleCommands test.Number23")));
}
