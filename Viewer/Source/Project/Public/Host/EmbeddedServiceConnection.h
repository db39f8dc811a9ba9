#pragma once

#include "CoreMinimal.h"
#include "Service/HalvexServiceConnection.h"

namespace Host
{
	/**
	 * The service of a project inside this program: the same requests, answered from the project's folder without a server. Work
	 * is done on a background thread, and nothing before the first request. Remembered sign-ins last beyond the program's end.
	 */
	class FEmbeddedServiceConnection final : public IHalvexServiceConnection
	{
	public:
		explicit FEmbeddedServiceConnection(const FString& InFolder);

		virtual TSharedRef<IHalvexServiceExchange> Send(const FHalvexServiceRequest& Request, FCallback Callback) override;
		/** "file://" and the folder, as nothing else is stored under. */
		virtual FString GetServiceName() const override;
		virtual FString ResolveAddress(const FString& Address) const override;

	private:
		class FLazyService;

		const FString Folder;
		/** Lives on in the work that has begun. */
		const TSharedRef<FLazyService> Service;
	};
}
