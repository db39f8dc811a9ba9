#include "Host/ProjectUsers.h"

#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "ServiceFolder.h"
#include "gtest/gtest.h"

#include <sys/stat.h>

using Host::FExpectedLog;
using Host::FProjectUser;
using Host::FProjectUsers;

namespace
{
	const std::string Hash = "$argon2id$v=19$m=8,t=1,p=1$vdpIhUWsd8gEAUCdisHNSQ$bw8oyspJpir/mAR7ongR89RDsaiCdhHujlqxTgbJ6io";

	std::string MakeUser(const std::string& Id, const std::string& Name, const std::string& More)
	{
		return "{\"id\": \"" + Id + "\", \"userName\": \"" + Name + "\", " + More + "}";
	}

	std::string WithHash(const std::string& Text = Hash)
	{
		return "\"passwordHash\": \"" + Text + "\"";
	}
}

TEST(ProjectUsersTest, AFileIsReadAndItsFaultsCostTheUserWhomTheyAreAbout)
{
	const FServiceFolder Folder;
	Folder.Write("users.json", "{\"users\": [\n7,\n" + MakeUser("a", "anna", WithHash()) + ",\n" + MakeUser("a", "other", WithHash()) + ",\n" + MakeUser("b", "ANNA", WithHash()) + ",\n"
		+ MakeUser("", "x", WithHash()) + ",\n" + MakeUser("c", "", WithHash()) + ",\n" + MakeUser("d", "dora", "\"email\": 5, " + WithHash()) + ",\n" + MakeUser("e", "eva", "\"email\": \"\"") + ",\n"
		+ MakeUser("f", "fritz", WithHash("plain password")) + ",\n" + MakeUser("g", "gerd", WithHash("$argon2id$v=19$m=8,t=1,p=1$zz")) + ",\n"
		+ MakeUser("h", "hans", WithHash("$argon2id$v=19$m=4000000000,t=1,p=1$vdpIhUWsd8gEAUCdisHNSQ$bw8oyspJpir/mAR7ongR89RDsaiCdhHujlqxTgbJ6io")) + ",\n" + MakeUser("z", "zoe", WithHash()) + "]}");
	const FExpectedLog Number(TEXT("users.json:2:1: expected an object, found a number"));
	const FExpectedLog Taken(TEXT("another user has this id or userName"), 2);
	const FExpectedLog Missing(TEXT("expected an id and a userName"), 2);
	const FExpectedLog Email(TEXT("email: expected a text, found a number"));
	const FExpectedLog NoHash(TEXT("passwordHash: expected an argon2id hash"), 4);
	const TArray<FProjectUser> Users = FProjectUsers::Load(Folder.GetPath());
	ASSERT_EQ(2, Users.Num());
	EXPECT_TRUE(Users[0].Id.Equals(TEXT("a")));
	EXPECT_TRUE(Users[1].Id.Equals(TEXT("z")));
}

TEST(ProjectUsersTest, AFileThatCannotBeReadIsOneLine)
{
	const FServiceFolder Folder;
	for (const char* Text : { "", "{", "[]", "{\"users\": 5}", "{}" })
	{
		Folder.Write("users.json", Text);
		const FExpectedLog Line(TEXT("nobody can sign in"));
		EXPECT_EQ(0, FProjectUsers::Load(Folder.GetPath()).Num());
	}
}

TEST(ProjectUsersTest, AnAddedUserCanSignIn)
{
	const FServiceFolder Folder;
	std::filesystem::remove(Folder.Path / "users.json");
	FString Reason;
	EXPECT_TRUE(FProjectUsers::Add(Folder.GetPath(), TEXT("Jörg"), TEXT("pässword"), Reason)) << TCHAR_TO_UTF8(*Reason);
	struct stat Status = {};
	EXPECT_EQ(0, stat((Folder.Path / "users.json").c_str(), &Status));
	EXPECT_EQ(mode_t(0600), Status.st_mode & 07777);
	FTestService Service(Folder);
	EXPECT_EQ("200", FTestService::Describe(Service.SignIn("Jörg", "pässword")));
	EXPECT_EQ("401 invalid_credentials", FTestService::Describe(Service.SignIn("Jörg", "passwort")));
	EXPECT_EQ(std::string::npos, Folder.Read("users.json").find("pässword"));
}

TEST(ProjectUsersTest, AddingKeepsAllElseInTheFile)
{
	const FServiceFolder Folder;
	Folder.Write("users.json", "{\"note\": [1, 2.5, null, true], \"users\": [" + MakeUser("a", "anna", "\"role\": {\"name\": \"x\"}, " + WithHash()) + "]}");
	FString Reason;
	EXPECT_TRUE(FProjectUsers::Add(Folder.GetPath(), TEXT("ben"), TEXT("password"), Reason));
	const std::string Text = Folder.Read("users.json");
	for (const char* Part : { "\"note\"", "2.5", "null", "true", "\"role\"", "\"anna\"", "\"ben\"" })
	{
		EXPECT_NE(std::string::npos, Text.find(Part)) << Part;
	}
	EXPECT_EQ(2, FProjectUsers::Load(Folder.GetPath()).Num());
}

TEST(ProjectUsersTest, WhatCannotBeAddedLeavesTheFileAsItIs)
{
	const FServiceFolder Folder;
	const std::string Before = Folder.Read("users.json");
	FString Reason;
	EXPECT_FALSE(FProjectUsers::Add(Folder.GetPath(), TEXT("ANNA"), TEXT("password"), Reason));
	EXPECT_TRUE(Reason.Contains(TEXT("there is a user of that name")));
	EXPECT_FALSE(FProjectUsers::Add(Folder.GetPath(), TEXT(""), TEXT("password"), Reason));
	EXPECT_FALSE(FProjectUsers::Add(Folder.GetPath(), TEXT("x"), TEXT(""), Reason));
	EXPECT_FALSE(FProjectUsers::Add(Folder.GetPath(), TEXT("x"), *FString::ChrN(1025, TEXT('x')), Reason));
	EXPECT_EQ(Before, Folder.Read("users.json"));
	Folder.Write("users.json", "broken");
	EXPECT_FALSE(FProjectUsers::Add(Folder.GetPath(), TEXT("x"), TEXT("password"), Reason));
	EXPECT_EQ("broken", Folder.Read("users.json"));
	EXPECT_FALSE(FProjectUsers::Add(TEXT("/nowhere/at/all"), TEXT("x"), TEXT("password"), Reason));
}

TEST(ProjectUsersTest, TheUsersOfTheSampleProjectSignInWithTheirDocumentedPasswords)
{
	Host::FProjectServiceSettings Settings;
	Settings.Folder = TEXT(HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside");
	Host::FProjectService Service(Settings);
	for (const char* Body : { R"({"user": "mara.lind", "password": "harbour-lights", "remember": false})", R"({"user": "jon.becker", "password": "lantern-street", "remember": false})" })
	{
		Host::FServiceRequest Request;
		Request.Method = TEXT("POST");
		Request.Target = TEXT("/api/session");
		Request.Body.Append(reinterpret_cast<const uint8*>(Body), int32(std::strlen(Body)));
		const Host::FServiceResponse Answer = Service.Handle(Request);
		EXPECT_EQ("200", FTestService::Describe(Answer)) << Body;
		const std::string Picture = FTestService::Get(Answer, "user.picture.address");
		if (Picture != "(none)")
		{
			Request.Method = TEXT("GET");
			Request.Target = TEXT("/") + FString(UTF8_TO_TCHAR(Picture.c_str()));
			EXPECT_EQ(200, Service.Handle(Request).Status) << Picture;
		}
	}
}
