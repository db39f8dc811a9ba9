#include "UObject/ScriptDelegates.h"

#include "UObject/Class.h"

namespace Host
{
	UFunction* FindBoundFunction(const UObject* Object, FName FunctionName)
	{
		return Object && !FunctionName.IsNone() ? Object->FindFunction(FunctionName) : nullptr;
	}

	void CallBoundFunction(UObject* Object, UFunction* Function, void* Parms)
	{
		Object->ProcessEvent(Function, Parms);
	}

	FString DescribeBinding(const UObject* Object, FName FunctionName)
	{
		if (!FindBoundFunction(Object, FunctionName))
		{
			return TEXT("<Unbound>");
		}
		return Object->GetPathName() + TEXT(".") + FunctionName.ToString();
	}

	void ReportDuplicateBinding(const FString& Binding)
	{
		ensureAlwaysMsgf(false, TEXT("%s is bound already; it will be called twice"), *Binding);
	}

	void ReportUnboundFunction(FName FunctionName)
	{
		ensureAlwaysMsgf(false, TEXT("Unable to bind '%s': it is no UFUNCTION of the object, or the object is dead"), *FunctionName.ToString());
	}

	FName FunctionNameFromText(const TCHAR* Text)
	{
		const FString Expression(Text);
		const int32 Colon = Expression.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		checkf(Colon != INDEX_NONE, TEXT("'%s' does not have the form &Class::Function"), Text);
		return FName(*Expression.Mid(Colon + 2).TrimStartAndEnd());
	}
}
