#include "Project/ProjectReader.h"

#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Project/ProjectJson.h"

const TCHAR* const FProjectReader::FileName = TEXT("project.json");

bool FProjectReader::LoadFolder(const FString& Folder, FProjectData& OutProject)
{
	const FString Path = FPaths::Combine(Folder, FileName);
	FReadProblems Problems(Path);
	TArray<uint8> Bytes;
	bool bRead = false;
	if (FFileHelper::LoadFileToArray(Bytes, *Path, FILEREAD_Silent))
	{
		bRead = ReadBytes(Bytes, OutProject, Problems);
	}
	else
	{
		OutProject = FProjectData();
		Problems.Add(0, 0, TEXT("the file cannot be read"));
	}
	OutProject.Source = FPaths::ConvertRelativePathToFull(Folder) / TEXT("");
	Problems.Log();
	return bRead;
}

bool FProjectReader::ReadBytes(TConstArrayView<uint8> Bytes, FProjectData& OutProject, FReadProblems& Problems)
{
	OutProject = FProjectData();
	return FProjectJson(Bytes, OutProject, Problems).Read();
}
