#include "Modules/ModuleManager.h"

#include "CoreMinimal.h"
#include "CoreTestModule.h"
#include "ExpectedLog.h"
#include "Host/LinkedModules.h"
#include "TestText.h"
#include "gtest/gtest.h"

using Host::FExpectedLog;

namespace
{
	const FName TestModule = TEXT("CoreTestTypes");

	/** Starts from no module loaded, and puts those back that the program had. */
	class ModuleManagerTest : public ::testing::Test
	{
	protected:
		static void SetUpTestSuite()
		{
			int32 Count = 0;
			const Host::FLinkedModule* const Linked = Host::GetLinkedModules(Count);
			for (int32 Index = 0; Index < Count; ++Index)
			{
				if (FModuleManager::Get().IsModuleLoaded(Linked[Index].Name))
				{
					GetLoadedBefore().Add(Linked[Index].Name);
				}
			}
			FModuleManager::Get().UnloadModulesAtShutdown();
		}

		static void TearDownTestSuite()
		{
			for (const FName Module : GetLoadedBefore())
			{
				FModuleManager::Get().LoadModule(Module);
			}
			GetLoadedBefore().Empty();
		}

		void SetUp() override
		{
			FCoreTestModule::GetEvents().Empty();
			Changes = FModuleManager::Get().OnModulesChanged().AddLambda([this](FName Name, EModuleChangeReason Reason)
			{
				Changed += (Reason == EModuleChangeReason::ModuleLoaded ? TEXT("+") : TEXT("-")) + Name.ToString() + TEXT(" ");
			});
		}

		void TearDown() override
		{
			FModuleManager::Get().UnloadModulesAtShutdown();
			FModuleManager::Get().OnModulesChanged().Remove(Changes);
		}

		static std::string GetEvents()
		{
			return ToUtf8(FString::Join(FCoreTestModule::GetEvents(), TEXT(" ")));
		}

		static TArray<FName>& GetLoadedBefore()
		{
			static TArray<FName> Names;
			return Names;
		}

		FDelegateHandle Changes;
		FString Changed;
	};
}

TEST_F(ModuleManagerTest, LoadingStartsAModuleOnce)
{
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TestModule));
	IModuleInterface* const Module = FModuleManager::Get().LoadModule(TestModule);
	ASSERT_NE(nullptr, Module);
	EXPECT_EQ(Module, FModuleManager::Get().LoadModule(TestModule));
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TestModule));
	EXPECT_EQ("Startup", GetEvents());
}

TEST_F(ModuleManagerTest, AModuleIsGivenOnlyOnceLoaded)
{
	EXPECT_EQ(nullptr, FModuleManager::GetModulePtr<FCoreTestModule>(TestModule));
	FCoreTestModule& Module = FModuleManager::LoadModuleChecked<FCoreTestModule>(TestModule);
	EXPECT_EQ(&Module, FModuleManager::GetModulePtr<FCoreTestModule>(TestModule));
	EXPECT_EQ(&Module, &FModuleManager::GetModuleChecked<FCoreTestModule>(TestModule));
}

TEST_F(ModuleManagerTest, AModuleWithoutCodeOfItsOwnLoadsToo)
{
	EXPECT_NE(nullptr, FModuleManager::Get().LoadModule(TEXT("Core")));
	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TEXT("Core")));
}

TEST_F(ModuleManagerTest, AnUnknownModuleIsNullWithAWarning)
{
	const FExpectedLog Expected(TEXT("The module 'Nothing' is not part of this program"));
	EXPECT_EQ(nullptr, FModuleManager::Get().LoadModule(TEXT("Nothing")));
	EModuleLoadResult Result = EModuleLoadResult::Success;
	EXPECT_EQ(nullptr, FModuleManager::Get().LoadModuleWithFailureReason(TEXT("Nothing"), Result));
	EXPECT_EQ(EModuleLoadResult::FileNotFound, Result);
	EXPECT_FALSE(FModuleManager::Get().ModuleExists(TEXT("Nothing")));
	EXPECT_TRUE(FModuleManager::Get().ModuleExists(TEXT("CoreTestTypes")));
}

TEST_F(ModuleManagerTest, ModulesStopInTheReverseOrderOfLoading)
{
	FModuleManager::Get().LoadModule(TEXT("Core"));
	FModuleManager::Get().LoadModule(TestModule);
	FModuleManager::Get().UnloadModulesAtShutdown();
	EXPECT_EQ("+Core +CoreTestTypes -CoreTestTypes -Core ", ToUtf8(Changed));
	EXPECT_EQ("Startup PreUnload Shutdown", GetEvents());
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TestModule));
}

TEST_F(ModuleManagerTest, AStoppedModuleStartsAgain)
{
	FModuleManager::Get().LoadModule(TestModule);
	FModuleManager::Get().UnloadModulesAtShutdown();
	FModuleManager::Get().LoadModule(TestModule);
	EXPECT_EQ("Startup PreUnload Shutdown Startup", GetEvents());
}

TEST(ModuleManagerDeathTest, RequiringAnUnknownModuleHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(FModuleManager::Get().LoadModuleChecked(TEXT("Nothing")), "'Nothing' is not part of this program");
}
