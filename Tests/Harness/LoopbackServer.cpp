#include "LoopbackServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>

namespace Host
{
	namespace
	{
		bool SendAll(int Socket, const std::string& Data)
		{
			size_t Sent = 0;
			while (Sent < Data.size())
			{
				const ssize_t Part = send(Socket, Data.data() + Sent, Data.size() - Sent, MSG_NOSIGNAL);
				if (Part <= 0)
				{
					return false;
				}
				Sent += static_cast<size_t>(Part);
			}
			return true;
		}

		std::string ToLower(std::string Text)
		{
			std::transform(Text.begin(), Text.end(), Text.begin(), [](unsigned char Char) { return static_cast<char>(std::tolower(Char)); });
			return Text;
		}

		std::string WithoutQuery(const std::string& Path)
		{
			return Path.substr(0, Path.find('?'));
		}

		std::string MakeHead(const FServerReply& Reply)
		{
			std::string Head = "HTTP/1.1 " + std::to_string(Reply.Status) + " Answer\r\n";
			for (const auto& [Name, Value] : Reply.Headers)
			{
				Head += Name + ": " + Value + "\r\n";
			}
			if (Reply.bChunked)
			{
				Head += "Transfer-Encoding: chunked\r\n";
			}
			else if (Reply.Fault != EServerFault::EndlessBody)
			{
				const long long Length = Reply.ClaimedLength >= 0 ? Reply.ClaimedLength : static_cast<long long>(Reply.Body.size());
				Head += "Content-Length: " + std::to_string(Length) + "\r\n";
			}
			return Head;
		}
	}

	struct FLoopbackServer::FConnection
	{
		int Socket = -1;
		std::thread Thread;
		/** What came and is not used yet. */
		std::string Buffer;
	};

	FLoopbackServer::FLoopbackServer()
	{
		Listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
		sockaddr_in Address = {};
		Address.sin_family = AF_INET;
		Address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
		socklen_t Size = sizeof(Address);
		const bool bListens = Listener >= 0 && bind(Listener, reinterpret_cast<sockaddr*>(&Address), sizeof(Address)) == 0 && listen(Listener, 256) == 0
			&& getsockname(Listener, reinterpret_cast<sockaddr*>(&Address), &Size) == 0;
		checkf(bListens, TEXT("the test cannot listen on this machine"));
		Port = ntohs(Address.sin_port);
		AcceptThread = std::thread([this] { Accept(); });
	}

	FLoopbackServer::~FLoopbackServer()
	{
		bStopping = true;
		Release();
		shutdown(Listener, SHUT_RDWR);
		AcceptThread.join();
		close(Listener);
		for (const std::unique_ptr<FConnection>& Connection : Connections)
		{
			shutdown(Connection->Socket, SHUT_RDWR);
			Connection->Thread.join();
			close(Connection->Socket);
		}
	}

	void FLoopbackServer::Serve(const std::string& Path, FServerReply Reply)
	{
		Serve(Path, [Reply = std::move(Reply)](const FServerRequest&, int) { return Reply; });
	}

	void FLoopbackServer::Serve(const std::string& Path, FHandler Handler)
	{
		const std::scoped_lock Lock(Mutex);
		Handlers[Path] = std::move(Handler);
	}

	void FLoopbackServer::Hold()
	{
		const std::scoped_lock Lock(Mutex);
		bHolding = true;
		NumToRelease = 0;
	}

	void FLoopbackServer::Release(int Count)
	{
		const std::scoped_lock Lock(Mutex);
		bHolding = Count >= 0;
		NumToRelease = Count >= 0 ? NumToRelease + Count : 0;
		Released.notify_all();
	}

	int FLoopbackServer::GetNumHeld() const
	{
		const std::scoped_lock Lock(Mutex);
		return NumHeld;
	}

	int FLoopbackServer::GetMostAtOnce() const
	{
		const std::scoped_lock Lock(Mutex);
		return MostAtOnce;
	}

	FString FLoopbackServer::GetUrl(const std::string& Path) const
	{
		return FString::Printf(TEXT("http://127.0.0.1:%d%s"), Port, UTF8_TO_TCHAR(Path.c_str()));
	}

	int FLoopbackServer::GetVisits(const std::string& Path) const
	{
		const std::scoped_lock Lock(Mutex);
		const auto Found = Visits.find(Path);
		return Found == Visits.end() ? 0 : Found->second;
	}

	FServerRequest FLoopbackServer::GetLastRequest(const std::string& Path) const
	{
		const std::scoped_lock Lock(Mutex);
		const auto Found = LastRequests.find(Path);
		return Found == LastRequests.end() ? FServerRequest() : Found->second;
	}

	void FLoopbackServer::Accept()
	{
		while (!bStopping)
		{
			const int Socket = accept4(Listener, nullptr, nullptr, SOCK_CLOEXEC);
			if (Socket < 0)
			{
				continue;
			}
			const int NoDelay = 1;
			setsockopt(Socket, IPPROTO_TCP, TCP_NODELAY, &NoDelay, sizeof(NoDelay));
			++NumConnections;
			Connections.push_back(std::make_unique<FConnection>());
			FConnection& Connection = *Connections.back();
			Connection.Socket = Socket;
			Connection.Thread = std::thread([this, &Connection] { Converse(Connection); });
		}
	}

	void FLoopbackServer::Converse(FConnection& Connection)
	{
		FServerRequest Request;
		while (!bStopping && ReadRequest(Connection, Request))
		{
			{
				const std::scoped_lock Lock(Mutex);
				MostAtOnce = std::max(MostAtOnce, ++NumAtOnce);
			}
			const FServerReply Reply = Answer(Request);
			const bool bGoesOn = Send(Connection, Reply, Request.Method == "HEAD");
			{
				const std::scoped_lock Lock(Mutex);
				--NumAtOnce;
			}
			if (!bGoesOn)
			{
				break;
			}
		}
		// The number stays taken until the end, so that no other connection gets it.
		shutdown(Connection.Socket, SHUT_RDWR);
	}

	bool FLoopbackServer::ReadRequest(FConnection& Connection, FServerRequest& OutRequest)
	{
		OutRequest = FServerRequest();
		size_t End;
		char Data[4096];
		while ((End = Connection.Buffer.find("\r\n\r\n")) == std::string::npos)
		{
			const ssize_t Size = recv(Connection.Socket, Data, sizeof(Data), 0);
			if (Size <= 0)
			{
				return false;
			}
			Connection.Buffer.append(Data, static_cast<size_t>(Size));
		}
		std::string Head = Connection.Buffer.substr(0, End + 2);
		Connection.Buffer.erase(0, End + 4);
		const size_t LineEnd = Head.find("\r\n");
		const std::string First = Head.substr(0, LineEnd);
		const size_t Space = First.find(' ');
		OutRequest.Method = First.substr(0, Space);
		OutRequest.Path = First.substr(Space + 1, First.rfind(' ') - Space - 1);
		for (size_t Start = LineEnd + 2; Start < Head.size();)
		{
			const size_t Stop = Head.find("\r\n", Start);
			const size_t Colon = Head.find(':', Start);
			OutRequest.Headers[ToLower(Head.substr(Start, Colon - Start))] = Head.substr(Colon + 2, Stop - Colon - 2);
			Start = Stop + 2;
		}
		const auto Length = OutRequest.Headers.find("content-length");
		const size_t BodySize = Length == OutRequest.Headers.end() ? 0 : std::stoul(Length->second);
		while (Connection.Buffer.size() < BodySize)
		{
			const ssize_t Size = recv(Connection.Socket, Data, sizeof(Data), 0);
			if (Size <= 0)
			{
				return false;
			}
			Connection.Buffer.append(Data, static_cast<size_t>(Size));
		}
		OutRequest.Body = Connection.Buffer.substr(0, BodySize);
		Connection.Buffer.erase(0, BodySize);
		return true;
	}

	FServerReply FLoopbackServer::Answer(const FServerRequest& Request)
	{
		FHandler Handler;
		int Visit;
		const std::string Path = WithoutQuery(Request.Path);
		{
			const std::scoped_lock Lock(Mutex);
			Visit = ++Visits[Path];
			LastRequests[Path] = Request;
			const auto Found = Handlers.find(Path);
			if (Found != Handlers.end())
			{
				Handler = Found->second;
			}
		}
		WaitForRelease();
		FServerReply NotFound;
		NotFound.Status = 404;
		NotFound.Body = "There is no such page.";
		return Handler ? Handler(Request, Visit) : NotFound;
	}

	void FLoopbackServer::WaitForRelease()
	{
		std::unique_lock Lock(Mutex);
		++NumHeld;
		Released.wait(Lock, [this] { return !bHolding || NumToRelease > 0 || bStopping; });
		--NumHeld;
		NumToRelease = std::max(NumToRelease - 1, 0);
	}

	bool FLoopbackServer::Send(FConnection& Connection, const FServerReply& Reply, bool bHead)
	{
		const std::string Head = MakeHead(Reply);
		switch (Reply.Fault)
		{
		case EServerFault::CloseAtOnce:
			return false;
		case EServerFault::Silence:
			WaitForEnd(Connection);
			return false;
		case EServerFault::Garbage:
			SendAll(Connection.Socket, std::string("\x00\xff no answer at all\r\n\r\n", 24));
			return false;
		case EServerFault::CloseInHeaders:
			SendAll(Connection.Socket, Head.substr(0, Head.size() / 2));
			return false;
		case EServerFault::EndlessHeaders:
			if (SendAll(Connection.Socket, Head))
			{
				while (SendAll(Connection.Socket, "X-More: " + std::string(1000, 'x') + "\r\n"))
				{
				}
			}
			return false;
		default:
			return SendAll(Connection.Socket, Head + "\r\n") && (bHead || SendBody(Connection, Reply));
		}
	}

	bool FLoopbackServer::SendBody(FConnection& Connection, const FServerReply& Reply)
	{
		const std::string& Body = Reply.Body;
		switch (Reply.Fault)
		{
		case EServerFault::SilenceAfterHeaders:
			WaitForEnd(Connection);
			return false;
		case EServerFault::CloseInBody:
			SendAll(Connection.Socket, Body.substr(0, Body.size() / 2));
			return false;
		case EServerFault::EndlessBody:
			while (SendAll(Connection.Socket, std::string(65536, 'x')))
			{
			}
			return false;
		case EServerFault::Drip:
			for (const char Byte : Body)
			{
				if (bStopping || !SendAll(Connection.Socket, std::string(1, Byte)))
				{
					return false;
				}
				std::this_thread::sleep_for(std::chrono::milliseconds(10));
			}
			return true;
		default:
			break;
		}
		if (!Reply.bChunked)
		{
			// After a claim that is not true the connection cannot go on.
			return SendAll(Connection.Socket, Body) && Reply.ClaimedLength < 0;
		}
		constexpr size_t ChunkSize = 1000;
		char Size[20];
		for (size_t Start = 0; Start < Body.size(); Start += ChunkSize)
		{
			const std::string Chunk = Body.substr(Start, ChunkSize);
			std::snprintf(Size, sizeof(Size), "%zx\r\n", Chunk.size());
			if (!SendAll(Connection.Socket, Size + Chunk + "\r\n"))
			{
				return false;
			}
		}
		return SendAll(Connection.Socket, "0\r\n\r\n");
	}

	void FLoopbackServer::WaitForEnd(FConnection& Connection)
	{
		char Data[256];
		while (recv(Connection.Socket, Data, sizeof(Data), 0) > 0)
		{
		}
	}
}
