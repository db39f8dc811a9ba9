#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "ServiceFolder.h"
#include "gtest/gtest.h"

#include <sys/stat.h>

namespace
{
	class FServedFilesTest : public testing::Test
	{
	protected:
		std::string Get(const std::string& Target) { return FTestService::Describe(Service.Send("GET", Target)); }

		static std::string Header(const Host::FServiceResponse& Response, const TCHAR* Name) { return TCHAR_TO_UTF8(*Response.GetHeader(Name)); }

		const FServiceFolder Folder;
		FTestService Service = FTestService(Folder);
	};
}

TEST_F(FServedFilesTest, FilesBelowTheFolderAreGiven)
{
	const Host::FServiceResponse Project = Service.Send("GET", "/project.json");
	EXPECT_EQ(200, Project.Status);
	EXPECT_EQ(R"({"format": 1, "name": "Test"})", FTestService::GetBody(Project));
	EXPECT_EQ("application/json", Header(Project, TEXT("Content-Type")));
	const Host::FServiceResponse Picture = Service.Send("GET", "/Portraits/anna.png?size=2");
	EXPECT_EQ("portrait", FTestService::GetBody(Picture));
	EXPECT_EQ("image/png", Header(Picture, TEXT("Content-Type")));
	EXPECT_EQ("portrait", FTestService::GetBody(Service.Send("GET", "/%50ortraits%2Fanna%2epng")));
	EXPECT_EQ(200, Service.Send("HEAD", "/project.json").Status);
}

TEST_F(FServedFilesTest, NamesMayBeAnyText)
{
	Folder.Write("Pläne/A b+c %.png", "plan");
	EXPECT_EQ("plan", FTestService::GetBody(Service.Send("GET", "/Pl%C3%A4ne/A%20b+c%20%25.png")));
	EXPECT_EQ("404 not_found", Get("/Pl%C3%A4ne/A%20b+c%20.png"));
}

TEST_F(FServedFilesTest, AFileThatIsKeptIsNotSentAgain)
{
	const Host::FServiceResponse First = Service.Send("GET", "/Portraits/anna.png");
	const FString Tag = First.GetHeader(TEXT("ETag"));
	EXPECT_TRUE(Tag.StartsWith(TEXT("\"")) && Tag.Len() > 20);
	EXPECT_EQ("no-cache", Header(First, TEXT("Cache-Control")));

	Host::FServiceRequest Request;
	Request.Method = TEXT("GET");
	Request.Target = TEXT("/Portraits/anna.png");
	Host::FProjectService Plain(Service.Settings);
	for (const FString& List : { Tag, TEXT("\"other\", W/") + Tag, FString(TEXT("*")) })
	{
		Request.IfNoneMatch = List;
		const Host::FServiceResponse Again = Plain.Handle(Request);
		EXPECT_EQ(304, Again.Status);
		EXPECT_EQ(0, Again.Body.Num());
		EXPECT_TRUE(Again.GetHeader(TEXT("ETag")).Equals(Tag));
	}
	Request.IfNoneMatch = TEXT("\"other\"");
	EXPECT_EQ(200, Plain.Handle(Request).Status);
	Folder.Write("Portraits/anna.png", "Portrait");
	Request.IfNoneMatch = Tag;
	EXPECT_EQ(200, Plain.Handle(Request).Status);
}

TEST_F(FServedFilesTest, TheUsersFileIsNeverGivenOut)
{
	Folder.Write("users.json.a1b2c3", "half written");
	Folder.Write("Users.JSON", "another");
	Folder.Write("Sub/users.json", "below");
	for (const char* Target : { "/users.json", "/%75sers.json", "/Portraits/../users.json", "/./users.json", "//users.json", "/users.json/", "/users.json?x", "/Users.JSON",
		"/users.json.a1b2c3", "/Sub/users.json", "/users%2ejson", "/Portraits/%2e%2e/users.json", "/Portraits%2f..%2fusers.json", "/users.json%00.png" })
	{
		EXPECT_EQ("404 not_found", Get(Target)) << Target;
	}
}

TEST_F(FServedFilesTest, NoPathLeadsOutOfTheFolder)
{
	const std::string Outside = Folder.Path.string() + "-outside";
	Folder.Write("../" + std::filesystem::path(Outside).filename().string(), "secret");
	std::filesystem::create_symlink(Outside, Folder.Path / "link.json");
	std::filesystem::create_directory_symlink(Folder.Path.parent_path(), Folder.Path / "Up");
	std::filesystem::create_symlink(Folder.Path / "project.json", Folder.Path / "inside.json");
	const std::string Name = std::filesystem::path(Outside).filename().string();
	for (const std::string& Target : { "/../" + Name, "/..%2f" + Name, "/%2e%2e/" + Name, "/%2e%2e%2f" + Name, "/Portraits/../../" + Name, "/..%5c" + Name, "/..\\" + Name, Outside, "/" + Outside,
		"/%2f" + Outside, std::string("/link.json"), "/Up/" + Name, std::string("/inside.json"), std::string("/%252e%252e/") + Name, std::string("/%c0%ae%c0%ae/") + Name })
	{
		EXPECT_EQ("404 not_found", Get(Target)) << Target;
	}
	std::filesystem::remove(Outside);
}

TEST_F(FServedFilesTest, WhatIsHiddenOrNoFileIsNotGivenOut)
{
	Folder.Write(".hidden", "x");
	Folder.Write(".git/config", "x");
	ASSERT_EQ(0, mkfifo((Folder.Path / "pipe").c_str(), 0600));
	for (const char* Target : { "/.hidden", "/.git/config", "/%2ehidden", "/pipe", "/Portraits", "/Portraits/", "/", "", "project.json", "/project.json/", "//project.json", "/nothing", "/*", "/%0a", "/project.json%0a" })
	{
		EXPECT_EQ("404 not_found", Get(Target)) << Target;
	}
}

TEST_F(FServedFilesTest, BrokenPercentCodesAndEndlessAddressesAreMalformed)
{
	for (const std::string& Target : { std::string("/%"), std::string("/%4"), std::string("/%zz"), std::string("/project.json%"), "/" + std::string(5000, 'a') })
	{
		EXPECT_EQ("400 malformed", Get(Target)) << Target;
	}
}

TEST_F(FServedFilesTest, FilesAnswerNoOtherMethods)
{
	const Host::FServiceResponse Answer = Service.Send("POST", "/project.json", "{}");
	EXPECT_EQ("405 method_not_allowed", FTestService::Describe(Answer));
	EXPECT_EQ("GET, HEAD", Header(Answer, TEXT("Allow")));
	EXPECT_EQ("405 method_not_allowed", FTestService::Describe(Service.Send("BREW", "/nothing")));
}

TEST_F(FServedFilesTest, AnEmptyFileIsGivenAndATooLargeOneIsNot)
{
	Folder.Write("empty.csv", "");
	const Host::FServiceResponse Empty = Service.Send("GET", "/empty.csv");
	EXPECT_EQ(200, Empty.Status);
	EXPECT_EQ("text/csv", Header(Empty, TEXT("Content-Type")));
	Folder.Write("huge.png", "");
	std::filesystem::resize_file(Folder.Path / "huge.png", 64ll * 1024 * 1024 + 1);
	const Host::FExpectedLog Line(TEXT("huge.png: has 67108865 bytes"));
	EXPECT_EQ("500 internal", Get("/huge.png"));
}

TEST_F(FServedFilesTest, AFolderThatIsGoneHasNoFiles)
{
	std::filesystem::remove_all(Folder.Path);
	EXPECT_EQ("404 not_found", Get("/project.json"));
}
