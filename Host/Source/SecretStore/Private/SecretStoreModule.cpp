#include "Host/SecretService.h"
#include "Modules/ModuleManager.h"

/** Has the values of the program's user kept by the desktop, from its start on; nothing is asked before a value is. */
class FSecretStoreModule final : public IModuleInterface
{
public:
	virtual void StartupModule() override { Host::FStoredValues::SetSecretStore(&Service); }
	virtual void ShutdownModule() override { Host::FStoredValues::SetSecretStore(nullptr); }

private:
	Host::FSecretService Service;
};

IMPLEMENT_MODULE(FSecretStoreModule, SecretStore)
