#include "Project/ProjectJson.h"

namespace
{
	constexpr double MaxDistance = 1e6;
}

void FProjectJson::ReadInterior()
{
	FProjectInterior Interior;
	ReadMembers([this, &Interior](const FString&)
	{
		if (Member == TEXT("id"))
		{
			ReadKey(Interior.InteriorId);
			SetKey(Interior.InteriorId);
		}
		else if (Member == TEXT("name"))
		{
			ReadString(Interior.Name);
		}
		else if (Member == TEXT("camera"))
		{
			ReadInteriorCamera(Interior.Camera);
		}
		else if (Member == TEXT("parts"))
		{
			ReadObjects(TEXT("parts"), [this, &Interior] { ReadInteriorPart(Interior); });
		}
		else
		{
			ReportUnknown();
		}
	});
	if (TakeKey(GetIds(EKind::Interior), Interior.InteriorId, TEXT("interior")))
	{
		for (const FInteriorPart& Part : Interior.Parts)
		{
			GetIds(EKind::Surface).Add(Part.Surface);
		}
		Project.Interiors.Add(MoveTemp(Interior));
	}
}

void FProjectJson::ReadInteriorPart(FProjectInterior& Interior)
{
	FInteriorPart Part;
	bool bVolume = false;
	ReadMembers([this, &Part, &bVolume](const FString&)
	{
		if (Member == TEXT("surface"))
		{
			ReadKey(Part.Surface);
			SetKey(Part.Surface);
		}
		else if (Member == TEXT("color"))
		{
			ReadColor(Part.Color);
		}
		else if (Member == TEXT("volume"))
		{
			bVolume = true;
			ReadVolume(Part.Shape);
		}
		else
		{
			ReportUnknown();
		}
	});
	if (Part.Shape.HasVolume())
	{
		Interior.Parts.Add(MoveTemp(Part));
	}
	else if (!bVolume && !bBroken)
	{
		Report(TEXT("a part needs a volume: it is left out"));
	}
}

void FProjectJson::ReadInteriorCamera(FInteriorCamera& OutCamera)
{
	ReadObject(TEXT("camera"), [this, &OutCamera](const FString&)
	{
		if (Member == TEXT("target"))
		{
			ReadLocation(OutCamera.Target);
		}
		else if (Member == TEXT("yaw"))
		{
			ReadNumber(OutCamera.Yaw, -360.0, 360.0, TEXT("degrees from -360 to 360"));
		}
		else if (Member == TEXT("pitch"))
		{
			ReadNumber(OutCamera.Pitch, -89.0, -2.0, TEXT("degrees from -89 to -2"));
		}
		else if (Member == TEXT("distance"))
		{
			ReadNumber(OutCamera.Distance, 0.0, MaxDistance, TEXT("centimetres from 0 to 1000000"));
		}
		else
		{
			ReportUnknown();
		}
	});
}
