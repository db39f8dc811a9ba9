#include "Host/ProjectConnection.h"

#include "HalvexSDKEngineSubsystem.h"
#include "Host/EmbeddedServiceConnection.h"
#include "Images/HalvexImageSettings.h"
#include "Misc/Paths.h"
#include "Project/ProjectAddress.h"
#include "Service/HalvexServiceSettings.h"

namespace Host
{
	FProjectConnection::FProjectConnection(const FString& Project)
		: ServiceAddress(GetDefault<UHalvexServiceSettings>()->ServiceAddress)
	{
		TSharedPtr<IHalvexServiceConnection> Connection;
		if (FProjectAddress::IsAddress(Project))
		{
			GetMutableDefault<UHalvexServiceSettings>()->ServiceAddress = FProjectAddress::GetFolder(FProjectAddress::GetFile(Project));
		}
		else
		{
			const FString Full = FPaths::ConvertRelativePathToFull(Project);
			ImageFolder = FPaths::DirectoryExists(Full) ? Full : FPaths::GetPath(Full);
			Connection = MakeShared<FEmbeddedServiceConnection>(ImageFolder);
			GetMutableDefault<UHalvexImageSettings>()->FurtherImageFolders.Add(ImageFolder);
		}
		UHalvexSDKEngineSubsystem::Get()->SetServiceConnection(Connection);
	}

	FProjectConnection::~FProjectConnection()
	{
		UHalvexSDKEngineSubsystem::Get()->SetServiceConnection(nullptr);
		GetMutableDefault<UHalvexServiceSettings>()->ServiceAddress = ServiceAddress;
		if (!ImageFolder.IsEmpty())
		{
			GetMutableDefault<UHalvexImageSettings>()->FurtherImageFolders.RemoveSingle(ImageFolder);
		}
	}
}
