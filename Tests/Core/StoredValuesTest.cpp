#include "Host/StoredValues.h"

#include "CoreMinimal.h"
#include "Environment.h"
#include "ExpectedLog.h"
#include "HAL/PlatformMisc.h"
#include "Host/PathRoots.h"
#include "RestoredRoots.h"
#include "TemporaryFolder.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fcntl.h>
#include <string>

using Host::ESecretAnswer;
using Host::FExpectedLog;
using Host::FStoredValueName;

namespace
{
	const TCHAR* const Store = TEXT("Tower");
	const TCHAR* const Section = TEXT("Session");

	bool Set(const TCHAR* Key, const TCHAR* Value)
	{
		return FPlatformMisc::SetStoredValue(Store, Section, Key, Value);
	}

	/** The value, or "(none)". */
	std::string Get(const TCHAR* Key)
	{
		FString Value = TEXT("(none)");
		const bool bFound = FPlatformMisc::GetStoredValue(Store, Section, Key, Value);
		EXPECT_EQ(bFound, !Value.Equals(TEXT("(none)")));
		return ToUtf8(Value);
	}

	bool Delete(const TCHAR* Key)
	{
		return FPlatformMisc::DeleteStoredValue(Store, Section, Key);
	}

	mode_t GetMode(const FString& Path)
	{
		struct stat Status = {};
		EXPECT_EQ(0, lstat(TCHAR_TO_UTF8(*Path), &Status)) << TCHAR_TO_UTF8(*Path);
		return Status.st_mode & 07777;
	}

	/** Values in a folder of the test's own. */
	class FStoredValuesTest : public testing::Test
	{
	protected:
		FStoredValuesTest() { Host::FPathRoots::SetSavedDir(Temporary / TEXT("Saved")); }

		FString GetFolder() const { return Temporary / TEXT("Saved/StoredValues"); }
		FString GetFile() const { return GetFolder() / TEXT("Tower.json"); }

		std::string List() const
		{
			TArray<FString> Names;
			IFileManager::Get().FindFiles(Names, *(GetFolder() / TEXT("*")), true, true);
			return ToUtf8(FString::Join(Names, TEXT(" ")));
		}

		const FRestoredRoots Roots;
		const FTemporaryFolder Temporary;
	};

	/** A store of secrets that does what the test says. */
	class FTestSecrets final : public Host::ISecretStore
	{
	public:
		virtual ESecretAnswer Set(const FStoredValueName& Name, const FString& NewValue) override
		{
			++NumCalls;
			if (bAnswers)
			{
				LastName = Name;
				Value = NewValue;
			}
			return bAnswers ? ESecretAnswer::Done : ESecretAnswer::Unavailable;
		}

		virtual ESecretAnswer Get(const FStoredValueName&, FString& OutValue) override
		{
			++NumCalls;
			if (bAnswers && !Value.IsEmpty())
			{
				OutValue = Value;
			}
			return !bAnswers ? ESecretAnswer::Unavailable : Value.IsEmpty() ? ESecretAnswer::Absent : ESecretAnswer::Done;
		}

		virtual ESecretAnswer Delete(const FStoredValueName&) override
		{
			++NumCalls;
			const bool bHadValue = !Value.IsEmpty();
			if (bAnswers)
			{
				Value.Empty();
			}
			return !bAnswers ? ESecretAnswer::Unavailable : bHadValue ? ESecretAnswer::Done : ESecretAnswer::Absent;
		}

		bool bAnswers = true;
		int32 NumCalls = 0;
		FString Value;
		FStoredValueName LastName;
	};

	/** As a program of the user's runs: with a store of secrets, in the user's own folder, which is the test's. */
	class FStoredSecretsTest : public testing::Test
	{
	protected:
		FStoredSecretsTest()
		{
			Host::FPathRoots::SetSavedDir(FString());
			Host::FStoredValues::SetSecretStore(&Secrets);
		}

		virtual ~FStoredSecretsTest() override { Host::FStoredValues::SetSecretStore(nullptr); }

		FString GetFile() const { return Temporary / TEXT("HalvexStoredValues/Tower.json"); }
		std::string ReadFile() const { return Temporary.Read(TEXT("HalvexStoredValues/Tower.json")); }

		const FRestoredRoots Roots;
		const FTemporaryFolder Temporary;
		const FEnvironment Data = FEnvironment("XDG_DATA_HOME", TCHAR_TO_UTF8(*Temporary.Path));
		FTestSecrets Secrets;
	};
}

TEST_F(FStoredValuesTest, AValueIsKeptUntilItIsDeleted)
{
	EXPECT_EQ("(none)", Get(TEXT("Token")));
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("one")));
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("two")));
	EXPECT_EQ("two", Get(TEXT("Token")));
	EXPECT_TRUE(Delete(TEXT("Token")));
	EXPECT_EQ("(none)", Get(TEXT("Token")));
	EXPECT_FALSE(Delete(TEXT("Token")));
}

TEST_F(FStoredValuesTest, NothingIsMadeForLooking)
{
	EXPECT_EQ("(none)", Get(TEXT("Token")));
	EXPECT_FALSE(Delete(TEXT("Token")));
	EXPECT_FALSE(IFileManager::Get().DirectoryExists(*(Temporary / TEXT("Saved"))));
}

TEST_F(FStoredValuesTest, StoresSectionsAndKeysAreApartAndTheirCaseCounts)
{
	EXPECT_TRUE(FPlatformMisc::SetStoredValue(TEXT("A"), TEXT("S"), TEXT("K"), TEXT("1")));
	EXPECT_TRUE(FPlatformMisc::SetStoredValue(TEXT("a"), TEXT("S"), TEXT("K"), TEXT("2")));
	EXPECT_TRUE(FPlatformMisc::SetStoredValue(TEXT("A"), TEXT("s"), TEXT("K"), TEXT("3")));
	EXPECT_TRUE(FPlatformMisc::SetStoredValue(TEXT("A"), TEXT("S"), TEXT("k"), TEXT("4")));
	FString Value;
	EXPECT_TRUE(FPlatformMisc::GetStoredValue(TEXT("A"), TEXT("S"), TEXT("K"), Value));
	EXPECT_EQ("1", ToUtf8(Value));
	EXPECT_TRUE(FPlatformMisc::GetStoredValue(TEXT("a"), TEXT("S"), TEXT("K"), Value));
	EXPECT_EQ("2", ToUtf8(Value));
	EXPECT_TRUE(FPlatformMisc::GetStoredValue(TEXT("A"), TEXT("s"), TEXT("K"), Value));
	EXPECT_EQ("3", ToUtf8(Value));
	EXPECT_TRUE(FPlatformMisc::GetStoredValue(TEXT("A"), TEXT("S"), TEXT("k"), Value));
	EXPECT_EQ("4", ToUtf8(Value));
}

TEST_F(FStoredValuesTest, NamesAndValuesMayBeAnyText)
{
	const FString Odd = TEXT("../Tür/\"\n\\ \u00e9\u6f22\U0001F511 =[]");
	const FString OddStore = TEXT("../../\u6f22 /..");
	EXPECT_TRUE(FPlatformMisc::SetStoredValue(OddStore, Odd, Odd, Odd));
	FString Value;
	EXPECT_TRUE(FPlatformMisc::GetStoredValue(OddStore, Odd, Odd, Value));
	EXPECT_EQ(ToUtf8(Odd), ToUtf8(Value));
	EXPECT_EQ("%2E%2E%2F%2E%2E%2F%E6%BC%A2%20%2F%2E%2E.json", List());
}

TEST_F(FStoredValuesTest, AnEmptyValueIsAValue)
{
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("")));
	EXPECT_EQ("", Get(TEXT("Token")));
}

TEST_F(FStoredValuesTest, OnlyTheUserMayEnterTheFolderAndReadTheFile)
{
	for (const mode_t Mask : { mode_t(0), mode_t(0022), mode_t(0777) })
	{
		const mode_t OldMask = umask(Mask);
		const bool bSet = Set(TEXT("Token"), TEXT("secret"));
		umask(OldMask);
		EXPECT_TRUE(bSet);
		EXPECT_EQ(mode_t(0700), GetMode(GetFolder())) << Mask;
		EXPECT_EQ(mode_t(0600), GetMode(GetFile())) << Mask;
		EXPECT_TRUE(IFileManager::Get().DeleteDirectory(*(Temporary / TEXT("Saved")), true, true));
	}
}

TEST_F(FStoredValuesTest, AFileThatOthersCouldReadIsTakenFromThem)
{
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("secret")));
	chmod(TCHAR_TO_UTF8(*GetFile()), 0644);
	chmod(TCHAR_TO_UTF8(*GetFolder()), 0755);
	const FExpectedLog Exposed(TEXT("Tower.json: other users could read this file of secrets"));
	EXPECT_EQ("secret", Get(TEXT("Token")));
	EXPECT_EQ(mode_t(0600), GetMode(GetFile()));
	EXPECT_EQ(mode_t(0700), GetMode(GetFolder()));
}

TEST_F(FStoredValuesTest, ALinkInPlaceOfTheFileIsSetAsideAndNotFollowed)
{
	EXPECT_TRUE(Set(TEXT("Other"), TEXT("x")));
	const FString Victim = Temporary.Write(TEXT("Victim"), "untouched");
	ASSERT_EQ(0, unlink(TCHAR_TO_UTF8(*GetFile())));
	ASSERT_EQ(0, symlink(TCHAR_TO_UTF8(*Victim), TCHAR_TO_UTF8(*GetFile())));
	const FExpectedLog Link(TEXT("Tower.json: is a link; it is kept as Tower.json.damaged"));
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("secret")));
	EXPECT_EQ("untouched", Temporary.Read(TEXT("Victim")));
	EXPECT_EQ("secret", Get(TEXT("Token")));
	EXPECT_EQ("Tower.json Tower.json.damaged", List());
}

TEST_F(FStoredValuesTest, ALinkInPlaceOfTheNewFileIsNotFollowed)
{
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("old")));
	const FString Victim = Temporary.Write(TEXT("Victim"), "untouched");
	ASSERT_EQ(0, symlink(TCHAR_TO_UTF8(*Victim), TCHAR_TO_UTF8(*(GetFile() + TEXT(".new")))));
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("secret")));
	EXPECT_EQ("untouched", Temporary.Read(TEXT("Victim")));
	EXPECT_EQ("secret", Get(TEXT("Token")));
	EXPECT_EQ("Tower.json", List());
}

TEST_F(FStoredValuesTest, ALinkInPlaceOfTheFolderIsNotFollowed)
{
	const FString Elsewhere = Temporary / TEXT("Elsewhere");
	ASSERT_TRUE(IFileManager::Get().MakeDirectory(*Elsewhere));
	ASSERT_TRUE(IFileManager::Get().MakeDirectory(*(Temporary / TEXT("Saved"))));
	ASSERT_EQ(0, symlink(TCHAR_TO_UTF8(*Elsewhere), TCHAR_TO_UTF8(*GetFolder())));
	const FExpectedLog Link(TEXT("the folder is a link"), 2);
	EXPECT_FALSE(Set(TEXT("Token"), TEXT("secret")));
	EXPECT_EQ("(none)", Get(TEXT("Token")));
	TArray<FString> Names;
	IFileManager::Get().FindFiles(Names, *(Elsewhere / TEXT("*")), true, true);
	EXPECT_EQ(0, Names.Num());
}

TEST_F(FStoredValuesTest, ADamagedFileIsSetAsideWithOneLineAndTheRestGoesOn)
{
	const char* const Damaged[] = {
		"", "{\"format\": 1, \"values\": [", "\xFF\xFE", "[]", "{\"format\": 2, \"values\": []}", "{\"format\": 1}",
		"{\"format\": 1, \"values\": [7]}", "{\"format\": 1, \"values\": [{\"section\": \"S\", \"key\": \"K\"}]}",
		"{\"format\": 1, \"values\": [{\"section\": \"S\", \"key\": \"K\", \"value\": 5}]}",
	};
	for (const char* Text : Damaged)
	{
		Temporary.Write(TEXT("Saved/StoredValues/Tower.json"), Text);
		chmod(TCHAR_TO_UTF8(*GetFile()), 0600);
		{
			const FExpectedLog Line(TEXT("its values count as not stored"));
			EXPECT_EQ("(none)", Get(TEXT("Token"))) << Text;
		}
		EXPECT_EQ(Text, Temporary.Read(TEXT("Saved/StoredValues/Tower.json.damaged")));
		EXPECT_TRUE(Set(TEXT("Token"), TEXT("new"))) << Text;
		EXPECT_EQ("new", Get(TEXT("Token"))) << Text;
		EXPECT_TRUE(IFileManager::Get().DeleteDirectory(*GetFolder(), true, true));
	}
}

TEST_F(FStoredValuesTest, AFolderInPlaceOfTheFileIsSetAside)
{
	ASSERT_TRUE(IFileManager::Get().MakeDirectory(*GetFile(), true));
	const FExpectedLog Line(TEXT("Tower.json: is no file of this user; it is kept as Tower.json.damaged"));
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("new")));
	EXPECT_EQ("new", Get(TEXT("Token")));
}

TEST_F(FStoredValuesTest, ASecondDamagedFileDoesNotReplaceTheFirst)
{
	const FExpectedLog Line(TEXT("its values count as not stored"), 2);
	for (const char* Text : { "first", "second" })
	{
		Temporary.Write(TEXT("Saved/StoredValues/Tower.json"), Text);
		chmod(TCHAR_TO_UTF8(*GetFile()), 0600);
		EXPECT_EQ("(none)", Get(TEXT("Token")));
	}
	EXPECT_EQ("first", Temporary.Read(TEXT("Saved/StoredValues/Tower.json.damaged")));
	EXPECT_EQ("second", Temporary.Read(TEXT("Saved/StoredValues/Tower.json.damaged2")));
}

TEST_F(FStoredValuesTest, AFullDiskLeavesTheOldValues)
{
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("old")));
	rlimit Old;
	ASSERT_EQ(0, getrlimit(RLIMIT_FSIZE, &Old));
	const rlimit Small = { 100, Old.rlim_max };
	const auto OldHandler = std::signal(SIGXFSZ, SIG_IGN);
	ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &Small));
	bool bSet = true;
	{
		const FExpectedLog Line(TEXT("stored values cannot be read or written: File too large"));
		bSet = Set(TEXT("Token"), *FString::ChrN(5000, TEXT('x')));
	}
	setrlimit(RLIMIT_FSIZE, &Old);
	std::signal(SIGXFSZ, OldHandler);
	EXPECT_FALSE(bSet);
	EXPECT_EQ("old", Get(TEXT("Token")));
	EXPECT_EQ("Tower.json", List());
}

TEST_F(FStoredValuesTest, AFileThatGrowsTooLargeIsNotWritten)
{
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("old")));
	const FExpectedLog Line(TEXT("at most 1048576 are accepted"));
	EXPECT_FALSE(Set(TEXT("Token"), *FString::ChrN(1024 * 1024, TEXT('x'))));
	EXPECT_EQ("old", Get(TEXT("Token")));
}

TEST_F(FStoredValuesTest, AProgramThatHoldsTheFolderIsNotWaitedForWithoutEnd)
{
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("old")));
	const int Held = open(TCHAR_TO_UTF8(*GetFolder()), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
	ASSERT_EQ(0, flock(Held, LOCK_EX));
	{
		const FExpectedLog Line(TEXT("another program does not let go of it"));
		EXPECT_FALSE(Set(TEXT("Token"), TEXT("new")));
	}
	EXPECT_EQ("old", Get(TEXT("Token")));
	close(Held);
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("new")));
}

TEST_F(FStoredValuesTest, ProgramsThatWriteAtOnceLoseNothing)
{
	constexpr int NumPrograms = 3;
	constexpr int NumValues = 20;
	pid_t Programs[NumPrograms];
	for (int Program = 0; Program < NumPrograms; ++Program)
	{
		Programs[Program] = fork();
		if (Programs[Program] == 0)
		{
			bool bAll = true;
			for (int Value = 0; Value < NumValues; ++Value)
			{
				bAll &= Set(*FString::Printf(TEXT("%d-%d"), Program, Value), *FString::FromInt(Value));
			}
			_exit(bAll ? 0 : 1);
		}
	}
	for (const pid_t Program : Programs)
	{
		int Status = 0;
		waitpid(Program, &Status, 0);
		EXPECT_TRUE(WIFEXITED(Status) && WEXITSTATUS(Status) == 0);
	}
	for (int Program = 0; Program < NumPrograms; ++Program)
	{
		for (int Value = 0; Value < NumValues; ++Value)
		{
			EXPECT_EQ(std::to_string(Value), Get(*FString::Printf(TEXT("%d-%d"), Program, Value)));
		}
	}
	EXPECT_EQ("Tower.json", List());
}

TEST_F(FStoredValuesTest, AFolderOfItsOwnKeepsAProgramFromTheStoreOfSecrets)
{
	FTestSecrets Secrets;
	Host::FStoredValues::SetSecretStore(&Secrets);
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("x")));
	EXPECT_EQ("x", Get(TEXT("Token")));
	EXPECT_TRUE(Delete(TEXT("Token")));
	Host::FStoredValues::SetSecretStore(nullptr);
	EXPECT_EQ(0, Secrets.NumCalls);
}

TEST_F(FStoredSecretsTest, AValueGoesToTheStoreOfSecretsAndToNoFile)
{
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("secret")));
	EXPECT_EQ("secret", ToUtf8(Secrets.Value));
	EXPECT_EQ("Tower Session Token", ToUtf8(Secrets.LastName.Store + TEXT(" ") + Secrets.LastName.Section + TEXT(" ") + Secrets.LastName.Key));
	EXPECT_EQ("secret", Get(TEXT("Token")));
	EXPECT_TRUE(Delete(TEXT("Token")));
	EXPECT_FALSE(Delete(TEXT("Token")));
	EXPECT_EQ("(none)", Get(TEXT("Token")));
	EXPECT_TRUE(Host::FFiles::IsAbsent(GetFile()));
}

TEST_F(FStoredSecretsTest, AStoreThatDoesNotAnswerIsReplacedByTheFile)
{
	Secrets.bAnswers = false;
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("secret")));
	EXPECT_EQ("secret", Get(TEXT("Token")));
	EXPECT_EQ(mode_t(0600), GetMode(GetFile()));
}

TEST_F(FStoredSecretsTest, WhatWasWrittenToTheFileIsNewerThanWhatTheStoreHas)
{
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("old")));
	Secrets.bAnswers = false;
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("new")));
	Secrets.bAnswers = true;
	EXPECT_EQ("new", Get(TEXT("Token")));
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("newest")));
	EXPECT_EQ("newest", Get(TEXT("Token")));
	EXPECT_EQ(std::string::npos, ReadFile().find("new"));
}

TEST_F(FStoredSecretsTest, WhatWasDeletedWhileTheStoreDidNotAnswerStaysDeleted)
{
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("old")));
	Secrets.bAnswers = false;
	EXPECT_TRUE(Delete(TEXT("Token")));
	EXPECT_FALSE(Delete(TEXT("Token")));
	Secrets.bAnswers = true;
	EXPECT_EQ("(none)", Get(TEXT("Token")));
	EXPECT_FALSE(Delete(TEXT("Token")));
	EXPECT_TRUE(Secrets.Value.IsEmpty());
	EXPECT_TRUE(Set(TEXT("Token"), TEXT("new")));
	EXPECT_EQ("new", Get(TEXT("Token")));
}
