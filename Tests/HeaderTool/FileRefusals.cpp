#include "RefusalCases.h"

std::vector<FRefusalCase> GetFileRefusals()
{
	return {
		{"MissingGeneratedInclude", R"(#pragma once
#include "UObject/Object.h"

UCLASS()
class UMissingGeneratedInclude : public UObject //!
{
	GENERATED_BODY()
};
)",
			"the header declares reflected types: write #include \"MissingGeneratedInclude.generated.h\" as its last include",
			true},
		{"GeneratedIncludeNotLast", R"(#pragma once
#include "GeneratedIncludeNotLast.generated.h" //!
#include "UObject/Object.h"

UCLASS()
class UGeneratedIncludeNotLast : public UObject
{
	GENERATED_BODY()
};
)",
			"\"GeneratedIncludeNotLast.generated.h\" must be the last include of the header", true},
		{"ForeignGeneratedInclude", R"(#pragma once
#include "UObject/Object.h"
#include "DuplicateName.generated.h" //!
#include "ForeignGeneratedInclude.generated.h"
)",
			"a header includes its own generated header only: write #include \"ForeignGeneratedInclude.generated.h\"", true},
		{"TypeAheadOfInclude", R"(#pragma once
#include "UObject/Object.h"

UENUM()
enum class ETypeAheadOfInclude : uint8
{
	A,
};

#include "TypeAheadOfInclude.generated.h" //!
)",
			"\"TypeAheadOfInclude.generated.h\" must be included ahead of the first reflected type", true},
		{"TypeInsideCondition", R"(
#if WITH_EDITOR
UCLASS()
class UTypeInsideCondition : public UObject //!
{
	GENERATED_BODY()
};
#endif
)",
			"a reflected type cannot stand inside of '#if WITH_EDITOR'"},
		{"InNamespace", R"(
namespace Inner
{
	UCLASS() //!
	class UInNamespace : public UObject
	{
		GENERATED_BODY()
	};
}
)",
			"reflected types stand at file scope: move this one out of a namespace"},
		{"InClass", R"(
class FInClass
{
	USTRUCT() //!
	struct FNested
	{
		GENERATED_BODY()
	};
};
)",
			"reflected types stand at file scope: move this one out of the class FInClass"},
		{"TemplateClass", R"(
USTRUCT() //!
template<typename T>
struct FTemplateClass
{
	GENERATED_BODY()
};
)",
			"a template cannot be reflected"},
		{"PropertyOutsideOfClass", R"(
UPROPERTY() //!
int32 Loose;
)",
			"UPROPERTY() stands outside of a class"},
		{"DuplicateName", R"(
USTRUCT()
struct FDuplicateName
{
	GENERATED_BODY()
};

UCLASS()
class UDuplicateName : public UObject //!
{
	GENERATED_BODY()
};
)",
			"UDuplicateName and FDuplicateName (DuplicateName.h:12) have one script name: rename one of them"},
	};
}
