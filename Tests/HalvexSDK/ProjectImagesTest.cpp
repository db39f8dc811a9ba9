#include "EngineTest.h"

#include "Project/ProjectImages.h"
#include "Project/ProjectReader.h"

namespace
{
	using Host::ToStd;

	FProjectData MakeProject(const TCHAR* Source, const TCHAR* Address)
	{
		FProjectData Project;
		Project.Source = Source;
		FProjectImage& Image = Project.Images.AddDefaulted_GetRef();
		Image.ImageId = TEXT("plan");
		Image.Title = TEXT("Plan");
		Image.Address = Address;
		return Project;
	}

	std::string FindAddress(const TCHAR* Source, const TCHAR* Address)
	{
		return ToStd(FProjectImages::Find(MakeProject(Source, Address), TEXT("plan")).Address);
	}
}

TEST(ProjectImages, RelativeOnesLieInTheProjectsFolder)
{
	EXPECT_EQ(FindAddress(TEXT("/projects/Quay side/"), TEXT("Pictures/Größe 100%.png")), "file:///projects/Quay%20side/Pictures/Gr%C3%B6%C3%9Fe%20100%25.png");
}

TEST(ProjectImages, RelativeOnesLieBesideTheProjectsAddress)
{
	EXPECT_EQ(FindAddress(TEXT("http://host:81/quay%20side/"), TEXT("Pictures/a b#1?.png")), "http://host:81/quay%20side/Pictures/a%20b%231%3F.png");
	EXPECT_EQ(FindAddress(TEXT("https://host/"), TEXT("{size}/plan.png")), "https://host/{size}/plan.png") << "the size is put in later";
}

TEST(ProjectImages, AddressesStayAsTheyAre)
{
	EXPECT_EQ(FindAddress(TEXT("/projects/"), TEXT("https://pictures/a.png?x=1")), "https://pictures/a.png?x=1");
	EXPECT_EQ(FindAddress(TEXT("http://host/"), TEXT("https://pictures/a.png?x=1")), "https://pictures/a.png?x=1");
}

TEST(ProjectImages, WithoutAnImageThereIsNoAddress)
{
	const FProjectData Project = MakeProject(TEXT("/projects/"), TEXT("a.png"));
	EXPECT_EQ(ToStd(FProjectImages::Find(Project, TEXT("other")).Address), "");
	EXPECT_EQ(ToStd(FProjectImages::Find(Project, NAME_None).Address), "");
	EXPECT_EQ(ToStd(FProjectImages::Find(Project, TEXT("PLAN")).ImageName), "Plan") << "keys count without their case";
}

TEST(ProjectImages, ThoseOfTheSampleProjectAreFound)
{
	FProjectData Project;
	ASSERT_TRUE(FProjectReader::LoadFolder(TEXT(HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside"), Project));
	EXPECT_EQ(ToStd(FProjectImages::Find(Project, TEXT("view-harbour")).Address), "file://" HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside/Pictures/view-harbour.png");
}
