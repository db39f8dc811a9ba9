#include "HttpServer.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformTime.h"

#include <microhttpd.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <mutex>

namespace
{
	constexpr unsigned MaxConnections = 1000;
	constexpr unsigned SilenceSeconds = 30;
	/** Of the head of a request, and of the part of its body that is on its way. */
	constexpr size_t ConnectionBytes = 32 * 1024;
	/** A body that is too large is let in up to here, so that its sender hears why it is not accepted. */
	constexpr size_t MaxDiscardedBytes = 4 * 1024 * 1024;
	constexpr size_t MaxLoggedPath = 200;

	/** How long the end waits for requests that are being answered. */
	constexpr auto MaxEndTime = std::chrono::seconds(5);

	/** The requests that have begun and not ended. */
	class FOpenRequests
	{
	public:
		void Add()
		{
			const std::scoped_lock Lock(Mutex);
			++Count;
		}

		void Remove()
		{
			const std::scoped_lock Lock(Mutex);
			--Count;
			Removed.notify_all();
		}

		void WaitForAll()
		{
			std::unique_lock Lock(Mutex);
			Removed.wait_for(Lock, MaxEndTime, [this] { return Count == 0; });
		}

	private:
		std::mutex Mutex;
		std::condition_variable Removed;
		int Count = 0;
	};

	/** What the library hands to each call. */
	struct FServed
	{
		Host::FProjectService* Service = nullptr;
		FOpenRequests Open;
	};

	/** A request that is coming in. */
	struct FIncoming
	{
		Host::FServiceRequest Request;
		/** All of the body's, kept or not. */
		size_t BodyBytes = 0;
		double Start = 0.0;
	};

	FString ToText(const char* Text)
	{
		return Text ? FString(UTF8_TO_TCHAR(Text)) : FString();
	}

	std::string DescribeAddress(const sockaddr* Address)
	{
		char Text[INET6_ADDRSTRLEN] = "";
		if (Address && Address->sa_family == AF_INET)
		{
			inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in*>(Address)->sin_addr, Text, sizeof(Text));
		}
		else if (Address && Address->sa_family == AF_INET6)
		{
			inet_ntop(AF_INET6, &reinterpret_cast<const sockaddr_in6*>(Address)->sin6_addr, Text, sizeof(Text));
		}
		return Text;
	}

	/** What may stand in a line of the log: one line, not without end. */
	std::string MakeLoggable(const FString& Text)
	{
		std::string Line = std::string(TCHAR_TO_UTF8(*Text)).substr(0, MaxLoggedPath);
		for (char& Byte : Line)
		{
			Byte = uint8(Byte) < 0x20 || Byte == 0x7F ? '?' : Byte;
		}
		return Line;
	}

	MHD_Result Respond(MHD_Connection* Connection, const FIncoming& Incoming, const Host::FServiceResponse& Answer)
	{
		MHD_Response* const Response = MHD_create_response_from_buffer(size_t(Answer.Body.Num()), const_cast<uint8*>(Answer.Body.GetData()), MHD_RESPMEM_MUST_COPY);
		if (!Response)
		{
			return MHD_NO;
		}
		for (const Host::FServiceHeader& Header : Answer.Headers)
		{
			MHD_add_response_header(Response, TCHAR_TO_UTF8(*Header.Name), TCHAR_TO_UTF8(*Header.Value));
		}
		const MHD_Result Result = MHD_queue_response(Connection, unsigned(Answer.Status), Response);
		MHD_destroy_response(Response);
		std::printf("%s %s %s %d %d bytes %.1f ms\n", TCHAR_TO_UTF8(*Incoming.Request.ClientAddress), MakeLoggable(Incoming.Request.Method).c_str(),
			MakeLoggable(Incoming.Request.Target).c_str(), Answer.Status, Answer.Body.Num(), (FPlatformTime::Seconds() - Incoming.Start) * 1000.0);
		std::fflush(stdout);
		return Result;
	}

	/** The library's way to hand over a request: first its head, then its body in parts, then nothing more. */
	MHD_Result TakeRequest(void* Context, MHD_Connection* Connection, const char* Url, const char* Method, const char*, const char* Part, size_t* PartSize, void** State)
	{
		FServed& Served = *static_cast<FServed*>(Context);
		FIncoming* const Known = static_cast<FIncoming*>(*State);
		if (!Known)
		{
			FIncoming* const Incoming = new FIncoming;
			*State = Incoming;
			Served.Open.Add();
			Incoming->Start = FPlatformTime::Seconds();
			Incoming->Request.Method = ToText(Method);
			Incoming->Request.Target = ToText(Url);
			Incoming->Request.Authorization = ToText(MHD_lookup_connection_value(Connection, MHD_HEADER_KIND, MHD_HTTP_HEADER_AUTHORIZATION));
			Incoming->Request.IfNoneMatch = ToText(MHD_lookup_connection_value(Connection, MHD_HEADER_KIND, MHD_HTTP_HEADER_IF_NONE_MATCH));
			const MHD_ConnectionInfo* const Client = MHD_get_connection_info(Connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS);
			Incoming->Request.ClientAddress = ToText(DescribeAddress(Client ? Client->client_addr : nullptr).c_str());
			return MHD_YES;
		}
		if (*PartSize > 0)
		{
			Known->BodyBytes += *PartSize;
			// One byte more than is accepted tells the service all.
			const size_t Room = size_t(Host::FProjectService::MaxBodyBytes + 1 - Known->Request.Body.Num());
			Known->Request.Body.Append(reinterpret_cast<const uint8*>(Part), int32(std::min(*PartSize, Room)));
			*PartSize = 0;
			return Known->BodyBytes > MaxDiscardedBytes ? MHD_NO : MHD_YES;
		}
		return Respond(Connection, *Known, Served.Service->Handle(Known->Request));
	}

	void EndRequest(void* Context, MHD_Connection*, void** State, MHD_RequestTerminationCode)
	{
		if (*State)
		{
			delete static_cast<FIncoming*>(*State);
			*State = nullptr;
			static_cast<FServed*>(Context)->Open.Remove();
		}
	}

	/** Addresses go to the service as they came: it alone decides what their codes stand for. */
	size_t KeepAsItIs(void*, MHD_Connection*, char* Text)
	{
		return std::strlen(Text);
	}
}

struct FHttpServer::FImplementation
{
	MHD_Daemon* Daemon = nullptr;
	FServed Served;
	std::string Address;
	unsigned Port = 0;
	bool bIPv6 = false;
};

FHttpServer::FHttpServer()
	: Implementation(std::make_unique<FImplementation>())
{
}

FHttpServer::~FHttpServer()
{
	Stop();
}

bool FHttpServer::Start(Host::FProjectService& Service, const std::string& Address, uint16 Port, std::string& OutReason)
{
	sockaddr_in6 Six = {};
	sockaddr_in Four = {};
	Six.sin6_family = AF_INET6;
	Six.sin6_port = htons(Port);
	Four.sin_family = AF_INET;
	Four.sin_port = htons(Port);
	Implementation->Address = Address;
	Implementation->bIPv6 = inet_pton(AF_INET6, Address.c_str(), &Six.sin6_addr) == 1;
	if (!Implementation->bIPv6 && inet_pton(AF_INET, Address.c_str(), &Four.sin_addr) != 1)
	{
		OutReason = "'" + Address + "' is no IPv4 or IPv6 address";
		return false;
	}
	const sockaddr* const Listen = Implementation->bIPv6 ? reinterpret_cast<sockaddr*>(&Six) : reinterpret_cast<sockaddr*>(&Four);
	Implementation->Served.Service = &Service;
	// With a channel to its threads, without which it cannot stop listening before it ends. Not by epoll: when 128 connections
	// have something at once, the library's way by that forgets some of them.
	const unsigned Flags = MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_POLL | MHD_USE_ITC | (Implementation->bIPv6 ? MHD_USE_IPv6 : MHD_NO_FLAG);
	errno = 0;
	Implementation->Daemon = MHD_start_daemon(Flags, Port, nullptr, nullptr, &TakeRequest, &Implementation->Served,
		MHD_OPTION_SOCK_ADDR, Listen,
		MHD_OPTION_THREAD_POOL_SIZE, NumThreads,
		MHD_OPTION_CONNECTION_LIMIT, MaxConnections,
		MHD_OPTION_CONNECTION_TIMEOUT, SilenceSeconds,
		MHD_OPTION_CONNECTION_MEMORY_LIMIT, ConnectionBytes,
		MHD_OPTION_NOTIFY_COMPLETED, &EndRequest, &Implementation->Served,
		MHD_OPTION_UNESCAPE_CALLBACK, &KeepAsItIs, nullptr,
		MHD_OPTION_END);
	if (!Implementation->Daemon)
	{
		OutReason = "cannot listen on " + Address + " port " + std::to_string(Port) + ": " + std::strerror(errno);
		return false;
	}
	const MHD_DaemonInfo* const Info = MHD_get_daemon_info(Implementation->Daemon, MHD_DAEMON_INFO_BIND_PORT);
	Implementation->Port = Info ? Info->port : Port;
	return true;
}

std::string FHttpServer::GetUrl() const
{
	const std::string Machine = Implementation->bIPv6 ? "[" + Implementation->Address + "]" : Implementation->Address;
	return "http://" + Machine + ":" + std::to_string(Implementation->Port);
}

void FHttpServer::Stop()
{
	if (Implementation->Daemon)
	{
		const MHD_socket Listener = MHD_quiesce_daemon(Implementation->Daemon);
		Implementation->Served.Open.WaitForAll();
		MHD_stop_daemon(Implementation->Daemon);
		Implementation->Daemon = nullptr;
		if (Listener != MHD_INVALID_SOCKET)
		{
			close(Listener);
		}
	}
}
