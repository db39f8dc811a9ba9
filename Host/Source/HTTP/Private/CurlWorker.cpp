#include "CurlWorker.h"

namespace Host
{
	namespace
	{
		/** The library wakes up by itself for its own time-outs; this only bounds the sleep. */
		constexpr int LongestSleepMilliseconds = 60 * 1000;
	}

	FCurlWorker& FCurlWorker::Get()
	{
		static FCurlWorker Worker;
		return Worker;
	}

	void FCurlWorker::Begin(const TSharedRef<FCurlTransfer>& Transfer, int32 InMaxPerServer)
	{
		const std::scoped_lock Lock(Mutex);
		Incoming.push_back(Transfer);
		MaxPerServer = InMaxPerServer;
		if (!Thread.joinable())
		{
			curl_global_init(CURL_GLOBAL_DEFAULT);
			Multi = curl_multi_init();
			bStopping = false;
			Thread = std::thread([this] { Run(); });
		}
		WorkCame.notify_one();
		curl_multi_wakeup(Multi);
	}

	void FCurlWorker::Cancel(FCurlTransfer& Transfer)
	{
		const std::scoped_lock Lock(Mutex);
		Transfer.bCancelled = true;
		bSomeCancelled = true;
		if (Thread.joinable())
		{
			WorkCame.notify_one();
			curl_multi_wakeup(Multi);
		}
	}

	void FCurlWorker::Stop()
	{
		{
			const std::scoped_lock Lock(Mutex);
			if (!Thread.joinable())
			{
				return;
			}
			bStopping = true;
			WorkCame.notify_one();
			curl_multi_wakeup(Multi);
		}
		Thread.join();
		for (const auto& [Easy, Handle] : Running)
		{
			curl_multi_remove_handle(Multi, Easy);
		}
		Running.clear();
		NumRunningByServer.clear();
		Waiting.clear();
		Incoming.clear();
		curl_multi_cleanup(Multi);
		Multi = nullptr;
		curl_global_cleanup();
	}

	void FCurlWorker::Run()
	{
		while (true)
		{
			WaitForWork();
			{
				const std::scoped_lock Lock(Mutex);
				if (bStopping)
				{
					return;
				}
				TakeIncoming();
			}
			StartWaiting();
			int NumActive = 0;
			curl_multi_perform(Multi, &NumActive);
			FinishDone();
			StartWaiting();
			if (!Running.empty())
			{
				curl_multi_poll(Multi, nullptr, 0, LongestSleepMilliseconds, nullptr);
			}
		}
	}

	void FCurlWorker::WaitForWork()
	{
		std::unique_lock Lock(Mutex);
		if (Running.empty() && Waiting.empty())
		{
			WorkCame.wait(Lock, [this] { return bStopping || bSomeCancelled || !Incoming.empty(); });
		}
	}

	void FCurlWorker::TakeIncoming()
	{
		for (TSharedRef<FCurlTransfer>& Transfer : Incoming)
		{
			Waiting.push_back(MoveTemp(Transfer));
		}
		Incoming.clear();
		if (bSomeCancelled)
		{
			bSomeCancelled = false;
			DropCancelled();
		}
	}

	void FCurlWorker::DropCancelled()
	{
		std::vector<CURL*> Cancelled;
		for (const auto& [Easy, Handle] : Running)
		{
			if (Handle->GetTransfer().bCancelled)
			{
				Cancelled.push_back(Easy);
			}
		}
		for (CURL* Easy : Cancelled)
		{
			Finish(Easy, CURLE_ABORTED_BY_CALLBACK);
		}
		for (const TSharedRef<FCurlTransfer>& Transfer : Waiting)
		{
			if (Transfer->bCancelled)
			{
				Transfer->FailureReason = EHttpFailureReason::Cancelled;
				Transfer->OnDone();
			}
		}
		std::erase_if(Waiting, [](const TSharedRef<FCurlTransfer>& Transfer) { return Transfer->bCancelled.load(); });
	}

	void FCurlWorker::StartWaiting()
	{
		for (auto It = Waiting.begin(); It != Waiting.end();)
		{
			int32& NumRunning = NumRunningByServer[(*It)->Server];
			if (NumRunning >= MaxPerServer)
			{
				++It;
				continue;
			}
			++NumRunning;
			auto Handle = std::make_unique<FCurlHandle>(MoveTemp(*It));
			It = Waiting.erase(It);
			curl_multi_add_handle(Multi, Handle->Get());
			Running.emplace(Handle->Get(), std::move(Handle));
		}
	}

	void FCurlWorker::FinishDone()
	{
		int NumLeft = 0;
		while (const CURLMsg* Message = curl_multi_info_read(Multi, &NumLeft))
		{
			if (Message->msg == CURLMSG_DONE)
			{
				Finish(Message->easy_handle, Message->data.result);
			}
		}
	}

	void FCurlWorker::Finish(CURL* Easy, CURLcode Result)
	{
		const auto Found = Running.find(Easy);
		const std::unique_ptr<FCurlHandle> Handle = std::move(Found->second);
		Running.erase(Found);
		curl_multi_remove_handle(Multi, Easy);
		const auto Server = NumRunningByServer.find(Handle->GetTransfer().Server);
		if (--Server->second == 0)
		{
			NumRunningByServer.erase(Server);
		}
		Handle->Finish(Result);
		Handle->GetTransfer().OnDone();
	}
}
