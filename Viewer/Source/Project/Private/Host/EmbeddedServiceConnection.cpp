#include "Host/EmbeddedServiceConnection.h"

#include "Async/Async.h"
#include "Host/Files.h"
#include "Host/ProjectService.h"
#include "Misc/Paths.h"
#include "Misc/ScopeLock.h"
#include "Project/ProjectImages.h"

namespace Host
{
	/** Makes the service when it is asked first, on the thread that asks. */
	class FEmbeddedServiceConnection::FLazyService
	{
	public:
		explicit FLazyService(const FString& Folder)
		{
			Settings.Folder = Folder;
			Settings.bKeepSessions = true;
		}

		FServiceResponse Handle(const FServiceRequest& Request)
		{
			{
				const FScopeLock Lock(&Guard);
				if (!Service)
				{
					Service = MakeUnique<FProjectService>(Settings);
				}
			}
			return Service->Handle(Request);
		}

	private:
		FProjectServiceSettings Settings;
		FCriticalSection Guard;
		TUniquePtr<FProjectService> Service;
	};

	namespace
	{
		/** An answer that is awaited; on the game thread. */
		class FEmbeddedExchange final : public IHalvexServiceExchange
		{
		public:
			explicit FEmbeddedExchange(IHalvexServiceConnection::FCallback InCallback)
				: Callback(MoveTemp(InCallback))
			{
			}

			void Tell(const FHalvexServiceReply& Reply)
			{
				// Whoever is called may let go of this.
				const IHalvexServiceConnection::FCallback Called = MoveTemp(Callback);
				Called(Reply);
			}

		private:
			IHalvexServiceConnection::FCallback Callback;
		};

		FServiceRequest MakeRequest(const FHalvexServiceRequest& Request)
		{
			FServiceRequest Result;
			Result.Method = Request.Verb;
			Result.Target = TEXT("/") + Request.Path;
			Result.Authorization = Request.Bearer.IsEmpty() ? FString() : TEXT("Bearer ") + Request.Bearer;
			Result.ClientAddress = TEXT("embedded");
			const FTCHARToUTF8 Utf8(*Request.Body, Request.Body.Len());
			Result.Body.Append(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
			return Result;
		}

		FHalvexServiceReply MakeReply(const FServiceResponse& Response)
		{
			FHalvexServiceReply Reply;
			Reply.Outcome = EHalvexServiceOutcome::Answered;
			Reply.Status = Response.Status;
			Reply.ContentType = Response.GetHeader(TEXT("Content-Type"));
			Reply.Body = FString(FUTF8ToTCHAR(reinterpret_cast<const ANSICHAR*>(Response.Body.GetData()), Response.Body.Num()).Get());
			Reply.RetryAfterSeconds = FCString::Atoi(*Response.GetHeader(TEXT("Retry-After")));
			return Reply;
		}
	}

	FEmbeddedServiceConnection::FEmbeddedServiceConnection(const FString& InFolder)
		: Folder(FPaths::ConvertRelativePathToFull(InFolder) / TEXT(""))
		, Service(MakeShared<FLazyService>(Folder))
	{
	}

	TSharedRef<IHalvexServiceExchange> FEmbeddedServiceConnection::Send(const FHalvexServiceRequest& Request, FCallback Callback)
	{
		const TSharedRef<FEmbeddedExchange> Exchange = MakeShared<FEmbeddedExchange>(MoveTemp(Callback));
		AsyncTask(ENamedThreads::AnyBackgroundThreadNormalTask, [Service = Service, What = MakeRequest(Request), Awaited = TWeakPtr<FEmbeddedExchange>(Exchange)]
		{
			AsyncTask(ENamedThreads::GameThread, [Reply = MakeReply(Service->Handle(What)), Awaited]
			{
				if (const TSharedPtr<FEmbeddedExchange> Pinned = Awaited.Pin())
				{
					Pinned->Tell(Reply);
				}
			});
		});
		return Exchange;
	}

	FString FEmbeddedServiceConnection::GetServiceName() const
	{
		return FProjectImages::ToFileAddress(Folder);
	}

	FString FEmbeddedServiceConnection::ResolveAddress(const FString& Address) const
	{
		if (Address.StartsWith(TEXT("http://")) || Address.StartsWith(TEXT("https://")))
		{
			return Address;
		}
		const FString Filename = FPaths::ConvertRelativePathToFull(Folder, Address);
		const bool bInside = !Address.IsEmpty() && !Address.Contains(TEXT(":")) && FPaths::IsRelative(Address) && FPaths::IsUnderDirectory(Filename, Folder);
		return bInside ? FProjectImages::ToFileAddress(Filename) : FString();
	}
}
