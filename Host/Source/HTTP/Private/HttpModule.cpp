#include "HttpModule.h"

#include "CurlHttpRequest.h"
#include "Host/HttpLimits.h"
#include "HttpLog.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"

DEFINE_LOG_CATEGORY(LogHttp);

FHttpModule& FHttpModule::Get()
{
	return FModuleManager::LoadModuleChecked<FHttpModule>(TEXT("HTTP"));
}

TSharedRef<IHttpRequest, ESPMode::ThreadSafe> FHttpModule::CreateRequest()
{
	return MakeShared<Host::FCurlHttpRequest>();
}

void FHttpModule::StartupModule()
{
	const TCHAR* const Section = TEXT("HTTP");
	GConfig->GetFloat(Section, TEXT("HttpTotalTimeout"), HttpTotalTimeout, GEngineIni);
	GConfig->GetFloat(Section, TEXT("HttpConnectionTimeout"), HttpConnectionTimeout, GEngineIni);
	GConfig->GetFloat(Section, TEXT("HttpActivityTimeout"), HttpActivityTimeout, GEngineIni);
	GConfig->GetInt(Section, TEXT("HttpMaxConnectionsPerServer"), HttpMaxConnectionsPerServer, GEngineIni);
	HttpMaxConnectionsPerServer = FMath::Max(HttpMaxConnectionsPerServer, 1);
	ExitHandle = FCoreDelegates::OnExit.AddStatic(&Host::FCurlHttpRequest::CancelAll);
}

void FHttpModule::ShutdownModule()
{
	FCoreDelegates::OnExit.Remove(ExitHandle);
	Host::FCurlHttpRequest::CancelAll();
}

int32 Host::FHttpActivity::GetNumActiveRequests()
{
	return FCurlHttpRequest::GetNumActive();
}

IMPLEMENT_MODULE(FHttpModule, HTTP)
