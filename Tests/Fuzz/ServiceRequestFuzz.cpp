// Feeds any request to the service of a project: a line with method and address, one each for the headers, and the body. Whatever
// is asked, the answer is one that the protocol knows, and what lies outside or is nobody's business stays where it is.

#include "CoreMinimal.h"
#include "Host/JsonDocument.h"
#include "Host/ProjectService.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace
{
	const char* const Secret = "not-for-anybody";

	/** "right-password" at the least cost; the secret is whatever no answer may hold. */
	const char* const Users = R"({"note": "not-for-anybody", "users": [{"id": "u1", "userName": "Anna", "picture": "Portraits/anna.png",
		"passwordHash": "$argon2id$v=19$m=8,t=1,p=1$vdpIhUWsd8gEAUCdisHNSQ$bw8oyspJpir/mAR7ongR89RDsaiCdhHujlqxTgbJ6io"}]})";

	void Write(const std::filesystem::path& File, const std::string& Text)
	{
		std::filesystem::create_directories(File.parent_path());
		std::ofstream(File, std::ios::binary) << Text;
	}

	/** A project, with secrets in it and around it. */
	class FFuzzedProject
	{
	public:
		FFuzzedProject()
		{
			std::string Pattern = (std::filesystem::temp_directory_path() / "fuzz-XXXXXX").string();
			check(mkdtemp(Pattern.data()));
			Root = Pattern;
			Write(Root / "secret.txt", Secret);
			Write(Root / "project/users.json", Users);
			Write(Root / "project/.hidden", Secret);
			Write(Root / "project/project.json", "{}");
			Write(Root / "project/Portraits/anna.png", "portrait");
			std::filesystem::create_symlink("../secret.txt", Root / "project/link");
			std::filesystem::create_directory_symlink("..", Root / "project/up");
			Host::FProjectServiceSettings Settings;
			Settings.Folder = UTF8_TO_TCHAR((Root / "project").c_str());
			Settings.MaxAttemptsForUser = MAX_int32;
			Settings.MaxAttemptsFromAddress = MAX_int32;
			Settings.Clock = [] { return 1800000000.0; };
			Service = MakeUnique<Host::FProjectService>(Settings);
		}

		~FFuzzedProject() { std::filesystem::remove_all(Root); }

		std::filesystem::path Root;
		TUniquePtr<Host::FProjectService> Service;
	};

	std::string TakeLine(std::string& Text)
	{
		const std::size_t End = Text.find('\n');
		const std::string Line = Text.substr(0, End);
		Text.erase(0, End == std::string::npos ? Text.size() : End + 1);
		return Line;
	}

	FString ToText(const std::string& Bytes)
	{
		return FString(FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Bytes.data()), int32(Bytes.size())));
	}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, std::size_t Size)
{
	static FFuzzedProject Project;
	std::string Rest(reinterpret_cast<const char*>(Data), Size);
	const std::string First = TakeLine(Rest);
	Host::FServiceRequest Request;
	Request.Method = ToText(First.substr(0, First.find(' ')));
	Request.Target = First.find(' ') == std::string::npos ? FString() : ToText(First.substr(First.find(' ') + 1));
	Request.Authorization = ToText(TakeLine(Rest));
	Request.IfNoneMatch = ToText(TakeLine(Rest));
	Request.Body.Append(reinterpret_cast<const uint8*>(Rest.data()), int32(Rest.size()));

	const Host::FServiceResponse Answer = Project.Service->Handle(Request);
	const std::string Body(reinterpret_cast<const char*>(Answer.Body.GetData()), std::size_t(Answer.Body.Num()));
	check(Body.find(Secret) == std::string::npos);
	switch (Answer.Status)
	{
	case 200:
		break;
	case 204:
	case 304:
		check(Body.empty());
		break;
	case 400:
	case 401:
	case 404:
	case 405:
	case 413:
	{
		Host::FJsonDocument Document;
		check(Document.Parse(Answer.Body.GetData(), Answer.Body.Num(), TEXT("Fuzz")) && Document.GetRoot().Find(TEXT("error")).Find(TEXT("code")).IsString());
		break;
	}
	default:
		checkf(false, TEXT("status %d"), Answer.Status);
	}
	return 0;
}
