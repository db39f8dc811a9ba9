#include "Host/SecretService.h"

#include "CoreMinimal.h"
#include "Environment.h"
#include "gtest/gtest.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

using Host::ESecretAnswer;

namespace
{
	const Host::FStoredValueName Name = { TEXT("Tower"), TEXT("Session"), TEXT("Token") };

	/** A message bus that takes everyone in and says nothing. */
	class FSilentBus
	{
	public:
		FSilentBus()
			: Path(std::filesystem::temp_directory_path() / ("bus-" + std::to_string(getpid())))
			, Listener(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
		{
			sockaddr_un Address = {};
			Address.sun_family = AF_UNIX;
			Path.string().copy(Address.sun_path, sizeof(Address.sun_path) - 1);
			EXPECT_EQ(0, bind(Listener, reinterpret_cast<sockaddr*>(&Address), sizeof(Address)));
			EXPECT_EQ(0, listen(Listener, 8));
			Thread = std::thread([this]
			{
				for (int Guest; (Guest = accept(Listener, nullptr, nullptr)) >= 0;)
				{
					++NumGuests;
					// Until it goes.
					for (char Byte; read(Guest, &Byte, 1) > 0;)
					{
					}
					close(Guest);
				}
			});
		}

		~FSilentBus()
		{
			shutdown(Listener, SHUT_RDWR);
			Thread.join();
			close(Listener);
			std::filesystem::remove(Path);
		}

		FSilentBus(const FSilentBus&) = delete;
		FSilentBus& operator=(const FSilentBus&) = delete;

		const std::filesystem::path Path;
		std::atomic<int> NumGuests = 0;

	private:
		int Listener;
		std::thread Thread;
	};

	void ExpectUnavailable(Host::FSecretService& Service)
	{
		FString Value = TEXT("as it was");
		EXPECT_EQ(ESecretAnswer::Unavailable, Service.Set(Name, TEXT("secret")));
		EXPECT_EQ(ESecretAnswer::Unavailable, Service.Get(Name, Value));
		EXPECT_TRUE(Value.Equals(TEXT("as it was")));
		EXPECT_EQ(ESecretAnswer::Unavailable, Service.Delete(Name));
	}
}

TEST(SecretServiceTest, WithoutAMessageBusItIsUnavailable)
{
	const FEnvironment Bus("DBUS_SESSION_BUS_ADDRESS", "disabled:");
	Host::FSecretService Service;
	ExpectUnavailable(Service);
}

TEST(SecretServiceTest, ABusThatIsGoneIsUnavailable)
{
	const FEnvironment Bus("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
	Host::FSecretService Service;
	ExpectUnavailable(Service);
}

TEST(SecretServiceTest, AServiceThatDoesNotAnswerIsWaitedForOnce)
{
	FSilentBus Silent;
	const FEnvironment Bus("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + Silent.Path.string()).c_str());
	Host::FSecretService Service(0.2);
	ExpectUnavailable(Service);
	EXPECT_EQ(1, Silent.NumGuests);
}
