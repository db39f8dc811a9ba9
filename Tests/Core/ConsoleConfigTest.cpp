#include "Host/ConsoleConfig.h"

#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "Host/PathRoots.h"
#include "Misc/ConfigCacheIni.h"
#include "RestoredRoots.h"
#include "TemporaryFolder.h"
#include "TestText.h"
#include "gtest/gtest.h"

using Host::FExpectedLog;

namespace
{
	/** A configuration of the test's own. */
	class ConsoleConfigTest : public ::testing::Test
	{
	protected:
		void TearDown() override { GConfig->Flush(true, TEXT("ConsoleTest")); }

		void Apply(const char* Content, EConsoleVariableFlags SetBy = ECVF_SetBySystemSettingsIni)
		{
			Host::FPathRoots::SetProjectDir(Folder / TEXT("Project"));
			Host::FPathRoots::SetSavedDir(Folder / TEXT("Saved"));
			Folder.Write(TEXT("Project/Config/DefaultConsoleTest.ini"), Content);
			GConfig->Flush(true, TEXT("ConsoleTest"));
			Host::ApplyConsoleVariables(TEXT("ConsoleVariables"), TEXT("ConsoleTest"), SetBy);
		}

		FTemporaryFolder Folder;
		const FRestoredRoots Restored;
	};
}

TEST_F(ConsoleConfigTest, TheSectionSetsVariablesByNameInAnyCase)
{
	const TAutoConsoleVariable<int32> Number(TEXT("test.Config1"), 1, TEXT(""));
	const TAutoConsoleVariable<bool> Truth(TEXT("test.Config2"), false, TEXT(""));
	const TAutoConsoleVariable<FString> Text(TEXT("test.Config3"), FString(TEXT("a")), TEXT(""));
	Apply("[Other]\ntest.Config1=9\n[ConsoleVariables]\nTEST.config1=7\ntest.Config2=True\ntest.Config3=b = c\n");
	EXPECT_EQ(7, Number->GetInt());
	EXPECT_TRUE(Truth->GetBool());
	EXPECT_EQ("b = c", ToUtf8(Text->GetString()));
	EXPECT_TRUE((uint32(Number->GetFlags()) & ECVF_SetByMask) == ECVF_SetBySystemSettingsIni);
}

TEST_F(ConsoleConfigTest, AVariableThatComesLaterGetsItsValueThen)
{
	Apply("[ConsoleVariables]\ntest.Config4=7\n");
	const TAutoConsoleVariable<int32> Number(TEXT("test.Config4"), 1, TEXT(""));
	EXPECT_EQ(7, Number->GetInt());
	EXPECT_EQ("1", ToUtf8(Number->GetDefaultValue()));
}

TEST_F(ConsoleConfigTest, AHigherRankStandsWhateverTheOrder)
{
	const TAutoConsoleVariable<int32> Number(TEXT("test.Config5"), 1, TEXT(""));
	Number->Set(3, ECVF_SetByConsole);
	{
		const FExpectedLog Ignored(TEXT("'test.Config5' to '7' by 'SystemSettingsIni' was ignored"));
		Apply("[ConsoleVariables]\ntest.Config5=7\n");
	}
	EXPECT_EQ(3, Number->GetInt());
	{
		const TAutoConsoleVariable<int32> Later(TEXT("test.Config6"), 1, TEXT(""));
		Later->Set(3, ECVF_SetByConsole);
	}
	Apply("[ConsoleVariables]\ntest.Config6=7\n");
	const TAutoConsoleVariable<int32> Later(TEXT("test.Config6"), 1, TEXT(""));
	EXPECT_EQ(3, Later->GetInt());
}

TEST_F(ConsoleConfigTest, AValueThatIsNoneIsOneWarningAndTheOthersCount)
{
	const TAutoConsoleVariable<int32> First(TEXT("test.Config7"), 1, TEXT(""));
	const TAutoConsoleVariable<int32> Second(TEXT("test.Config8"), 1, TEXT(""));
	const FExpectedLog Refused(TEXT("Setting the console variable 'test.Config7' to 'many' by 'SystemSettingsIni' was ignored: expected a number"));
	Apply("[ConsoleVariables]\ntest.Config7=many\ntest.Config8=2\n");
	EXPECT_EQ(1, First->GetInt());
	EXPECT_EQ(2, Second->GetInt());
}

TEST_F(ConsoleConfigTest, ACommandIsNotSet)
{
	bool bCalled = false;
	const FAutoConsoleCommand Command(TEXT("test.Config9"), TEXT(""), FConsoleCommandDelegate::CreateLambda([&bCalled] { bCalled = true; }));
	const FExpectedLog Refused(TEXT("[ConsoleVariables] of the configuration ConsoleTest: 'test.Config9' is a command"));
	Apply("[ConsoleVariables]\ntest.Config9=1\n");
	EXPECT_FALSE(bCalled);
}
