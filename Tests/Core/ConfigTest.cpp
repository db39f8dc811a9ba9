#include "Misc/ConfigCacheIni.h"

#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "Host/ConfigFiles.h"
#include "Host/PathRoots.h"
#include "RestoredRoots.h"
#include "TemporaryFolder.h"
#include "TestText.h"
#include "gtest/gtest.h"

using Host::FExpectedLog;

namespace
{
	const FString Name = TEXT("CoreTest");

	/** A plugin, a project and a user of the test's own. */
	class ConfigTest : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			Host::FPathRoots::SetProjectDir(Folder / TEXT("Project"));
			Host::FPathRoots::SetSavedDir(Folder / TEXT("Saved"));
			Host::FConfigFiles::AddPluginFolder(Folder / TEXT("Plugin"));
		}

		void TearDown() override
		{
			GConfig->Flush(true, Name);
			Host::FConfigFiles::RemovePluginFolder(Folder / TEXT("Plugin"));
		}

		void WritePlugin(const char* Content) { Folder.Write(TEXT("Plugin/DefaultCoreTest.ini"), Content); }
		void WriteProject(const char* Content) { Folder.Write(TEXT("Project/Config/DefaultCoreTest.ini"), Content); }
		void WriteUser(const char* Content) { Folder.Write(TEXT("Saved/Config/CoreTest.ini"), Content); }
		std::string ReadUser() { return Folder.Read(TEXT("Saved/Config/CoreTest.ini")); }

		static std::string Get(const TCHAR* Key, const TCHAR* Section = TEXT("S"))
		{
			FString Value = TEXT("(none)");
			GConfig->GetString(Section, Key, Value, Name);
			return ToUtf8(Value);
		}

		/** All values of a key, between bars. */
		static std::string GetAll(const TCHAR* Key)
		{
			TArray<FString> Values;
			GConfig->GetArray(TEXT("S"), Key, Values, Name);
			return ToUtf8(FString::Join(Values, TEXT("|")));
		}

		FTemporaryFolder Folder;
		const FRestoredRoots Restored;
	};
}

TEST_F(ConfigTest, LaterLayersWin)
{
	WritePlugin("[S]\nA=plugin\nB=plugin\nC=plugin\n");
	WriteProject("[S]\nB=project\nC=project\n");
	WriteUser("[S]\nC=user\n");
	EXPECT_EQ("plugin", Get(TEXT("A")));
	EXPECT_EQ("project", Get(TEXT("B")));
	EXPECT_EQ("user", Get(TEXT("C")));
}

TEST_F(ConfigTest, WithoutFilesThereIsNothing)
{
	FString Value = TEXT("before");
	EXPECT_FALSE(GConfig->GetString(TEXT("S"), TEXT("A"), Value, Name));
	EXPECT_EQ("before", ToUtf8(Value));
	EXPECT_FALSE(GConfig->DoesSectionExist(TEXT("S"), Name));
}

TEST_F(ConfigTest, SectionsAndKeysIgnoreCase)
{
	WriteProject("[/Script/Module.Class]\nSomeKey=Value\n");
	EXPECT_EQ("Value", Get(TEXT("SOMEKEY"), TEXT("/script/module.class")));
}

TEST_F(ConfigTest, AFilePathStandsForItsBaseName)
{
	WriteProject("[S]\nA=1\n");
	FString Value;
	EXPECT_TRUE(GConfig->GetString(TEXT("S"), TEXT("A"), Value, TEXT("/some/where/CoreTest.ini")));
	EXPECT_EQ("1", ToUtf8(Value));
}

TEST_F(ConfigTest, SeveralPlainLinesOfOneFileMakeAnArray)
{
	WritePlugin("[S]\nP=old\n");
	WriteProject("[S]\nP=a\nQ=x\nP=b\n");
	EXPECT_EQ("a|b", GetAll(TEXT("P")));
	EXPECT_EQ("b", Get(TEXT("P")));
}

TEST_F(ConfigTest, PlusAddsUnlessItIsThere)
{
	WritePlugin("[S]\n+P=a\n+P=b\n");
	WriteProject("[S]\n+P=b\n+P=c\n+P=B\n");
	EXPECT_EQ("a|b|c|B", GetAll(TEXT("P")));
}

TEST_F(ConfigTest, DotAddsInAnyCase)
{
	WritePlugin("[S]\n.P=a\n");
	WriteProject("[S]\n.P=a\n");
	EXPECT_EQ("a|a", GetAll(TEXT("P")));
}

TEST_F(ConfigTest, MinusTakesTheValueAway)
{
	WritePlugin("[S]\n+P=a\n+P=b\n+P=c\n");
	WriteProject("[S]\n-P=b\n-P=nothing\n");
	EXPECT_EQ("a|c", GetAll(TEXT("P")));
}

TEST_F(ConfigTest, ExclamationMarkTakesAllAway)
{
	WritePlugin("[S]\n+P=a\n+P=b\n");
	WriteProject("[S]\n!P=ClearArray\n+P=z\n");
	EXPECT_EQ("z", GetAll(TEXT("P")));
	WritePlugin("[S]\nQ=a\n");
	WriteProject("[S]\n!Q=ClearArray\n");
	GConfig->Flush(true, Name);
	FString Value;
	EXPECT_FALSE(GConfig->GetString(TEXT("S"), TEXT("Q"), Value, Name));
}

TEST_F(ConfigTest, OperationsWorkInTheOrderOfTheirLines)
{
	WriteProject("[S]\n+P=a\n-P=a\n+P=b\n; again\n+P=a\n");
	EXPECT_EQ("b|a", GetAll(TEXT("P")));
}

TEST_F(ConfigTest, NumbersAndTruthsAreRead)
{
	WriteProject("[S]\nI=-12\nF=0.25\nL=9007199254740993\nB1=True\nB2=0\nB3=on\n");
	int32 Integer = 0;
	EXPECT_TRUE(GConfig->GetInt(TEXT("S"), TEXT("I"), Integer, Name));
	EXPECT_EQ(-12, Integer);
	float Float = 0.0f;
	EXPECT_TRUE(GConfig->GetFloat(TEXT("S"), TEXT("F"), Float, Name));
	EXPECT_EQ(0.25f, Float);
	int64 Long = 0;
	EXPECT_TRUE(GConfig->GetInt64(TEXT("S"), TEXT("L"), Long, Name));
	EXPECT_EQ(9007199254740993, Long);
	bool bValue = false;
	EXPECT_TRUE(GConfig->GetBool(TEXT("S"), TEXT("B1"), bValue, Name));
	EXPECT_TRUE(bValue);
	EXPECT_TRUE(GConfig->GetBool(TEXT("S"), TEXT("B2"), bValue, Name));
	EXPECT_FALSE(bValue);
	EXPECT_TRUE(GConfig->GetBool(TEXT("S"), TEXT("B3"), bValue, Name));
	EXPECT_TRUE(bValue);
}

TEST_F(ConfigTest, WhatIsNoNumberIsOneWarning)
{
	WriteProject("[S]\nI=many\n");
	const FExpectedLog Expected(TEXT("CoreTest: [S] I: expected a number, found 'many'"));
	int32 Integer = 5;
	EXPECT_FALSE(GConfig->GetInt(TEXT("S"), TEXT("I"), Integer, Name));
	EXPECT_EQ(5, Integer);
}

TEST_F(ConfigTest, CommentsAndSpacesAreLeftOut)
{
	WriteProject("; comment\n# another\n\n  [S]  \n  A = spaced value  \n;B=1\n");
	EXPECT_EQ("spaced value", Get(TEXT("A")));
	EXPECT_EQ("(none)", Get(TEXT("B")));
}

TEST_F(ConfigTest, ValuesMayHoldAnything)
{
	WriteProject("[S]\nA=(X=1,Y=\"a;b\")\nB=\"two\\nlines \\\"quoted\\\" \\u00e4\"\nC=a=b;c#d\nD=\n");
	EXPECT_EQ("(X=1,Y=\"a;b\")", Get(TEXT("A")));
	EXPECT_EQ("two\nlines \"quoted\" \xC3\xA4", Get(TEXT("B")));
	EXPECT_EQ("a=b;c#d", Get(TEXT("C")));
	EXPECT_EQ("", Get(TEXT("D")));
}

TEST_F(ConfigTest, SettingChangesMemoryAndFlushWritesTheUsersFileAlone)
{
	WriteProject("[S]\nA=project\nKeep=1\n");
	GConfig->SetString(TEXT("S"), TEXT("A"), TEXT("mine"), Name);
	EXPECT_EQ("mine", Get(TEXT("A")));
	EXPECT_FALSE(IFileManager::Get().FileExists(*(Folder / TEXT("Saved/Config/CoreTest.ini"))));
	GConfig->Flush(false, Name);
	EXPECT_EQ("[S]\nA=mine\n", ReadUser());
	EXPECT_EQ("[S]\nA=project\nKeep=1\n", Folder.Read(TEXT("Project/Config/DefaultCoreTest.ini")));
}

TEST_F(ConfigTest, EveryKindOfValueComesBackFromTheFile)
{
	const TCHAR* const Odd = TEXT(" \"quotes\" \\ and\r\nlines\t\u00e4\u0001 ");
	GConfig->SetString(TEXT("S"), TEXT("Odd"), Odd, Name);
	GConfig->SetString(TEXT("S"), TEXT("Empty"), TEXT(""), Name);
	GConfig->SetInt(TEXT("S"), TEXT("I"), -7, Name);
	GConfig->SetFloat(TEXT("S"), TEXT("F"), 0.1f, Name);
	GConfig->SetDouble(TEXT("S"), TEXT("D"), 0.1, Name);
	GConfig->SetBool(TEXT("S"), TEXT("B"), true, Name);
	GConfig->SetArray(TEXT("S"), TEXT("L"), {TEXT("a"), TEXT("a"), TEXT("b")}, Name);
	GConfig->Flush(true, Name);

	EXPECT_EQ(ToUtf8(Odd), Get(TEXT("Odd")));
	EXPECT_EQ("", Get(TEXT("Empty")));
	float Float = 0.0f;
	EXPECT_TRUE(GConfig->GetFloat(TEXT("S"), TEXT("F"), Float, Name));
	EXPECT_EQ(0.1f, Float);
	double Double = 0.0;
	EXPECT_TRUE(GConfig->GetDouble(TEXT("S"), TEXT("D"), Double, Name));
	EXPECT_EQ(0.1, Double);
	EXPECT_EQ("-7", Get(TEXT("I")));
	EXPECT_EQ("True", Get(TEXT("B")));
	EXPECT_EQ("a|a|b", GetAll(TEXT("L")));
}

TEST_F(ConfigTest, AnArraySetEmptyHidesTheDefaults)
{
	WriteProject("[S]\n+L=a\n+L=b\n");
	GConfig->SetArray(TEXT("S"), TEXT("L"), {}, Name);
	EXPECT_EQ("", GetAll(TEXT("L")));
	GConfig->Flush(true, Name);
	EXPECT_EQ("", GetAll(TEXT("L")));
}

TEST_F(ConfigTest, RemovingTheUsersKeyShowsTheDefaultAgain)
{
	WriteProject("[S]\nA=project\n");
	WriteUser("[S]\nA=mine\n");
	EXPECT_TRUE(GConfig->RemoveKey(TEXT("S"), TEXT("A"), Name));
	EXPECT_EQ("project", Get(TEXT("A")));
	EXPECT_FALSE(GConfig->RemoveKey(TEXT("S"), TEXT("A"), Name));
}

TEST_F(ConfigTest, EmptyingASectionLeavesTheDefaults)
{
	WriteProject("[S]\nA=project\n");
	WriteUser("[S]\nA=mine\nB=mine\n[T]\nC=1\n");
	EXPECT_TRUE(GConfig->EmptySection(TEXT("S"), Name));
	EXPECT_EQ("project", Get(TEXT("A")));
	EXPECT_EQ("(none)", Get(TEXT("B")));
	GConfig->Flush(false, Name);
	EXPECT_EQ("[T]\nC=1\n", ReadUser());
}

TEST_F(ConfigTest, SavingTouchesOnlyTheLinesThatChange)
{
	WriteUser("; my notes\r\n\n[S]\n; about A\nA = 1\n   B=2\n; about T\n[T]\nC=3\nD=4\n");
	GConfig->SetInt(TEXT("S"), TEXT("A"), 5, Name);
	GConfig->SetInt(TEXT("S"), TEXT("New"), 6, Name);
	GConfig->RemoveKey(TEXT("T"), TEXT("D"), Name);
	GConfig->SetInt(TEXT("U"), TEXT("E"), 7, Name);
	GConfig->Flush(false, Name);
	EXPECT_EQ("; my notes\r\n\n[S]\n; about A\nA=5\n   B=2\nNew=6\n; about T\n[T]\nC=3\n\n[U]\nE=7\n", ReadUser());
}

TEST_F(ConfigTest, AnUnchangedFileIsNotWritten)
{
	const char* const Odd = "[S]\n   A   =   1   \n";
	WriteUser(Odd);
	EXPECT_EQ("1", Get(TEXT("A")));
	GConfig->Flush(false, Name);
	EXPECT_EQ(Odd, ReadUser());
}

TEST_F(ConfigTest, FlushingWithRemovalReadsAnew)
{
	WriteUser("[S]\nA=1\n");
	EXPECT_EQ("1", Get(TEXT("A")));
	WriteUser("[S]\nA=2\n");
	EXPECT_EQ("1", Get(TEXT("A")));
	GConfig->Flush(true, Name);
	EXPECT_EQ("2", Get(TEXT("A")));
}

TEST_F(ConfigTest, SectionsAreListed)
{
	WriteProject("[S]\nA=1\n+L=a\n+L=b\n[T]\nC=3\n");
	TArray<FString> Lines;
	EXPECT_TRUE(GConfig->GetSection(TEXT("S"), Lines, Name));
	EXPECT_EQ("A=1 L=a L=b", ToUtf8(FString::Join(Lines, TEXT(" "))));
	TArray<FString> Sections;
	EXPECT_TRUE(GConfig->GetSectionNames(Name, Sections));
	EXPECT_EQ("S T", ToUtf8(FString::Join(Sections, TEXT(" "))));
}

TEST_F(ConfigTest, AFaultyLineIsNamedAndTheRestGoesOn)
{
	WriteProject("[S]\nA=1\nthis is no line\nB=2\n");
	const FExpectedLog Expected(TEXT("DefaultCoreTest.ini:3: expected Key=Value, found no '='"));
	EXPECT_EQ("1", Get(TEXT("A")));
	EXPECT_EQ("2", Get(TEXT("B")));
}

TEST_F(ConfigTest, ManyFaultyLinesAreOneWarning)
{
	WriteProject("[S]\none\n=two\n+=three\nA=1\n");
	const FExpectedLog Expected(TEXT("DefaultCoreTest.ini:2: expected Key=Value, found no '=' (and 2 more faulty lines)"));
	EXPECT_EQ("1", Get(TEXT("A")));
}

TEST_F(ConfigTest, LinesBelowABrokenSectionDoNotCountForTheOneAbove)
{
	WriteProject("[S]\nA=1\n[Broken\nA=2\nB=2\n[T]\nC=3\n");
	const FExpectedLog Expected(TEXT("DefaultCoreTest.ini:3: expected ']'"));
	EXPECT_EQ("1", Get(TEXT("A")));
	EXPECT_EQ("(none)", Get(TEXT("B")));
	EXPECT_EQ("3", Get(TEXT("C"), TEXT("T")));
}

TEST_F(ConfigTest, AFileCutInTheMiddleGivesWhatItHas)
{
	WriteUser("[S]\nA=1\nB=2\n[/Script/Eng");
	const FExpectedLog Expected(TEXT("CoreTest.ini:4: expected ']'"));
	EXPECT_EQ("2", Get(TEXT("B")));
}

TEST_F(ConfigTest, ABinaryFileIsLeftOut)
{
	WriteProject("[S]\nA=project\n");
	Folder.Write(TEXT("Saved/Config/CoreTest.ini"), "[S]\nA=\0\x01\x02", 10);
	const FExpectedLog Expected(TEXT("CoreTest.ini: the configuration file is left out: it is no text"));
	EXPECT_EQ("project", Get(TEXT("A")));
}

TEST_F(ConfigTest, AFileThatIsNoUtf8IsLeftOut)
{
	WriteUser("[S]\nA=Gr\xFC\xDF" "e\n");
	const FExpectedLog Expected(TEXT("it holds malformed characters"));
	EXPECT_EQ("(none)", Get(TEXT("A")));
}

TEST_F(ConfigTest, AHugeFileIsLeftOut)
{
	const std::string Huge = "[S]\nA=1\n" + std::string(5 * 1024 * 1024, ';');
	WriteUser(Huge.c_str());
	const FExpectedLog Expected(TEXT("at most 4194304 are accepted"));
	EXPECT_EQ("(none)", Get(TEXT("A")));
}

TEST_F(ConfigTest, Utf16IsReadAfterItsMark)
{
	Folder.Write(TEXT("Saved/Config/CoreTest.ini"), "\xFF\xFE[\0S\0]\0\n\0A\0=\0\xE4\0", 16);
	EXPECT_EQ("\xC3\xA4", Get(TEXT("A")));
}

TEST_F(ConfigTest, HalfACharacterInUtf16IsLeftOut)
{
	Folder.Write(TEXT("Saved/Config/CoreTest.ini"), "\xFF\xFE[\0S\0]\0\n\0A\0=\0\0\xD8", 16);
	const FExpectedLog Expected(TEXT("it holds malformed characters"));
	EXPECT_EQ("(none)", Get(TEXT("A")));
}

TEST_F(ConfigTest, AReplacementCharacterIsACharacterLikeAnother)
{
	GConfig->SetString(TEXT("S"), TEXT("A"), TEXT("\uFFFD"), Name);
	GConfig->Flush(true, Name);
	EXPECT_EQ("\xEF\xBF\xBD", Get(TEXT("A")));
}

TEST_F(ConfigTest, SavingKeepsFaultyLinesAsTheyAre)
{
	WriteUser("[S]\nA=1\nprecious words\n[Broken\nC=3\n");
	const FExpectedLog Expected(TEXT("CoreTest.ini:3:"));
	GConfig->SetInt(TEXT("S"), TEXT("B"), 2, Name);
	GConfig->Flush(false, Name);
	EXPECT_EQ("[S]\nA=1\nB=2\nprecious words\n[Broken\nC=3\n", ReadUser());
}

TEST_F(ConfigTest, SavingOverAFileThatWasLeftOutKeepsACopyOfIt)
{
	const char* const Damaged = "[S]\nA=Gr\xFC\xDF" "e\n";
	WriteUser(Damaged);
	const FExpectedLog Expected(TEXT("it is no text"));
	GConfig->SetInt(TEXT("S"), TEXT("B"), 2, Name);
	GConfig->Flush(false, Name);
	EXPECT_EQ("[S]\nB=2\n", ReadUser());
	EXPECT_EQ(Damaged, Folder.Read(TEXT("Saved/Config/CoreTest.ini.damaged")));
}

TEST_F(ConfigTest, AWrongValueIsOneLineForAllWhoReadIt)
{
	WriteUser("[S]\nI=many\n");
	const FExpectedLog Expected(TEXT("[S] I: expected a number, found 'many'"), 2);
	int32 Integer = 5;
	EXPECT_FALSE(GConfig->GetInt(TEXT("S"), TEXT("I"), Integer, Name));
	EXPECT_FALSE(GConfig->GetInt(TEXT("S"), TEXT("I"), Integer, Name));
	GConfig->Flush(true, Name);
	EXPECT_FALSE(GConfig->GetInt(TEXT("S"), TEXT("I"), Integer, Name)) << "read anew, said anew";
}

TEST_F(ConfigTest, SavingKeepsTheOrderOfOperations)
{
	WriteUser("[S]\n-P=a\n+P=a\n-P=a\n+P=b\n");
	GConfig->SetInt(TEXT("S"), TEXT("A"), 1, Name);
	GConfig->Flush(true, Name);
	EXPECT_EQ("[S]\n-P=a\n+P=a\n-P=a\n+P=b\nA=1\n", ReadUser());
	EXPECT_EQ("b", GetAll(TEXT("P")));
}

TEST_F(ConfigTest, AKeyBeforeTheFirstSectionIsAFault)
{
	WriteProject("A=1\n[S]\nB=2\n");
	const FExpectedLog Expected(TEXT("DefaultCoreTest.ini:1: expected a [Section] before the first key"));
	EXPECT_EQ("2", Get(TEXT("B")));
}

TEST_F(ConfigTest, WhatCannotBeSavedStaysForTheNextTime)
{
	Folder.Write(TEXT("Saved"), "a file where the folder should be");
	GConfig->SetInt(TEXT("S"), TEXT("A"), 1, Name);
	{
		const FExpectedLog Expected(TEXT("the configuration cannot be saved"));
		GConfig->Flush(true, Name);
	}
	EXPECT_EQ("1", Get(TEXT("A")));
	ASSERT_TRUE(IFileManager::Get().Delete(*(Folder / TEXT("Saved"))));
	GConfig->Flush(true, Name);
	EXPECT_EQ("[S]\nA=1\n", ReadUser());
}

TEST_F(ConfigTest, NamesThatNoFileCanHoldAreRefused)
{
	const FExpectedLog Expected(TEXT("no configuration file can hold such a name"), 5);
	GConfig->SetInt(TEXT("S]"), TEXT("A"), 1, Name);
	GConfig->SetInt(TEXT("S"), TEXT("A=B"), 1, Name);
	GConfig->SetInt(TEXT("S"), TEXT(""), 1, Name);
	GConfig->SetInt(TEXT("S"), TEXT("+A"), 1, Name);
	GConfig->SetInt(TEXT("S\nT"), TEXT("A"), 1, Name);
}

TEST_F(ConfigTest, AProjectDefaultIsWrittenAtOnceKeepingTheRest)
{
	WriteProject("; of the project\n[S]\nA=1\n");
	EXPECT_TRUE(Host::FConfigFiles::SaveProjectDefault(Name, TEXT("S"), TEXT("B"), {TEXT("2")}));
	EXPECT_EQ("; of the project\n[S]\nA=1\nB=2\n", Folder.Read(TEXT("Project/Config/DefaultCoreTest.ini")));
	EXPECT_EQ("2", Get(TEXT("B")));
}
