#pragma once

#include "CoreMinimal.h"
#include "Interfaces/IHttpRequest.h"
#include "Project/ProjectData.h"

namespace Host
{
	/** Fetches a project from its address, without holding up a frame. On the game thread. */
	class FProjectFetch
	{
	public:
		enum class EState : uint8
		{
			Idle,
			Fetching,
			/** The project is there. */
			Done,
			/** There is none, and a text that says why; it may be fetched again. */
			Failed,
		};

		/**
		 * @param InAddress	of the project's file or of the folder that it is in; http or https
		 * @param InOnChanged	called when the state or the number of bytes is another
		 */
		FProjectFetch(const FString& InAddress, FSimpleDelegate InOnChanged);

		/** Ends what is on its way; nothing is called any more. */
		~FProjectFetch();
		FProjectFetch(const FProjectFetch&) = delete;
		FProjectFetch& operator=(const FProjectFetch&) = delete;

		/** Starts to fetch, also again after a failure. Nothing happens while it is fetching. */
		void Start();

		/** Gives up what is on its way, which has failed then. */
		void Cancel();

		EState GetState() const { return State; }
		/** Why it failed, for people: one or two sentences. */
		const FString& GetError() const { return Error; }
		/** Bytes that came so far. */
		uint64 GetNumBytes() const { return NumBytes; }
		/** The address for people. */
		const FString& GetName() const { return Name; }

		/** What was read, once it is done. */
		const FProjectData& GetProject() const { return Project; }

	private:
		void Complete(FHttpRequestPtr Request, FHttpResponsePtr Response, bool bConnected);
		void Progress(FHttpRequestPtr Request, uint64 BytesSent, uint64 BytesReceived);
		/** Reads the project from what came. */
		void Read(const IHttpResponse& Response);
		FString DescribeFailure(EHttpFailureReason Reason) const;
		void Fail(const FString& InError);

		const FString Address;
		const FString Name;
		FSimpleDelegate OnChanged;
		FHttpRequestPtr Running;
		EState State = EState::Idle;
		bool bCancelled = false;
		uint64 NumBytes = 0;
		FString Error;
		FProjectData Project;
	};
}
