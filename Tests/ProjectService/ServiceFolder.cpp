#include "ServiceFolder.h"

#include "CoreMinimal.h"
#include "Host/JsonDocument.h"
#include "gtest/gtest.h"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace
{
	// Of "right-password" and "other-password", at the least cost that there is.
	const char* const Users = R"({"users": [
		{"id": "u1", "userName": "Anna", "displayName": "Anna Ström", "email": "anna@example.org", "picture": "Portraits/anna.png",
			"passwordHash": "$argon2id$v=19$m=8,t=1,p=1$vdpIhUWsd8gEAUCdisHNSQ$bw8oyspJpir/mAR7ongR89RDsaiCdhHujlqxTgbJ6io"},
		{"id": "u2", "userName": "ben", "displayName": "Ben", "email": "",
			"passwordHash": "$argon2id$v=19$m=8,t=1,p=1$gx391KLCi5FpDpNCkUB5nw$PhC45rIH90ybgM1BM8oWgBAYfBxc0xX3TAjlcsOWABs"}
	]})";

	std::filesystem::path MakeFolder()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "service-XXXXXX").string();
		EXPECT_NE(nullptr, mkdtemp(Pattern.data()));
		return Pattern;
	}

	TArray<uint8> ToBytes(const std::string& Text)
	{
		return TArray<uint8>(reinterpret_cast<const uint8*>(Text.data()), int32(Text.size()));
	}
}

FServiceFolder::FServiceFolder()
	: Path(MakeFolder())
{
	Write("users.json", Users);
	Write("project.json", R"({"format": 1, "name": "Test"})");
	Write("Portraits/anna.png", "portrait");
}

FServiceFolder::~FServiceFolder()
{
	std::filesystem::remove_all(Path);
}

void FServiceFolder::Write(const std::string& Name, const std::string& Text) const
{
	std::filesystem::create_directories((Path / Name).parent_path());
	std::ofstream(Path / Name, std::ios::binary) << Text;
}

std::string FServiceFolder::Read(const std::string& Name) const
{
	std::ifstream Stream(Path / Name, std::ios::binary);
	return std::string(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
}

FString FServiceFolder::GetPath() const
{
	return FString(UTF8_TO_TCHAR(Path.c_str()));
}

FTestService::FTestService(const FServiceFolder& Folder, bool bKeepSessions)
{
	Settings.Folder = Folder.GetPath();
	Settings.TokenSeconds = 100;
	Settings.RefreshSeconds = 1000;
	Settings.MaxAttemptsForUser = 3;
	Settings.MaxAttemptsFromAddress = 6;
	Settings.AttemptSeconds = 60;
	Settings.bKeepSessions = bKeepSessions;
	Settings.Clock = [this] { return Now; };
	Service = std::make_unique<Host::FProjectService>(Settings);
}

Host::FServiceResponse FTestService::Send(const char* Method, const std::string& Target, const std::string& Body, const std::string& Token)
{
	Host::FServiceRequest Request;
	Request.Method = UTF8_TO_TCHAR(Method);
	Request.Target = UTF8_TO_TCHAR(Target.c_str());
	Request.Authorization = Token.empty() ? FString() : FString(TEXT("Bearer ")) + UTF8_TO_TCHAR(Token.c_str());
	Request.ClientAddress = TEXT("test");
	Request.Body = ToBytes(Body);
	return Service->Handle(Request);
}

Host::FServiceResponse FTestService::SignIn(const std::string& User, const std::string& Password, bool bRemember, const char* Address)
{
	Host::FServiceRequest Request;
	Request.Method = TEXT("POST");
	Request.Target = TEXT("/api/session");
	Request.ClientAddress = UTF8_TO_TCHAR(Address);
	Request.Body = ToBytes("{\"user\": \"" + User + "\", \"password\": \"" + Password + "\", \"remember\": " + (bRemember ? "true" : "false") + "}");
	return Service->Handle(Request);
}

Host::FServiceResponse FTestService::Refresh(const std::string& RefreshToken)
{
	return Send("POST", "/api/session/refresh", "{\"refreshToken\": \"" + RefreshToken + "\"}");
}

std::string FTestService::Get(const Host::FServiceResponse& Response, const char* Member)
{
	Host::FJsonDocument Document;
	Document.Parse(Response.Body.GetData(), Response.Body.Num(), TEXT("answer"));
	Host::FJsonNode Node = Document.GetRoot();
	std::istringstream Names(Member);
	for (std::string Name; std::getline(Names, Name, '.');)
	{
		Node = Node.Find(UTF8_TO_TCHAR(Name.c_str()));
	}
	int64 Number = 0;
	bool bValue = false;
	return Node.TryGetInteger(Number) ? std::to_string(Number)
		: Node.TryGetBool(bValue) ? (bValue ? "true" : "false")
		: Node.IsString() ? std::string(TCHAR_TO_UTF8(Node.GetString().GetData())) : "(none)";
}

std::string FTestService::GetBody(const Host::FServiceResponse& Response)
{
	return std::string(reinterpret_cast<const char*>(Response.Body.GetData()), size_t(Response.Body.Num()));
}

std::string FTestService::Describe(const Host::FServiceResponse& Response)
{
	const std::string Code = Get(Response, "error.code");
	return std::to_string(Response.Status) + (Code == "(none)" ? "" : " " + Code);
}
