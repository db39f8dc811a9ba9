#include "ObjectTestNode.h"

#include "UObject/ReferenceCollector.h"

int32 UObjectTestNode::NumBeginDestroy = 0;
int32 UObjectTestNode::NumFinishDestroy = 0;
int32 UObjectTestNode::NumDestructors = 0;
bool UObjectTestNode::bHoldBack = false;

UObjectTestNode::~UObjectTestNode()
{
	++NumDestructors;
}

void UObjectTestNode::BeginDestroy()
{
	++NumBeginDestroy;
	Super::BeginDestroy();
}

void UObjectTestNode::FinishDestroy()
{
	++NumFinishDestroy;
	Super::FinishDestroy();
}

void UObjectTestNode::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(InThis, Collector);
	Collector.AddReferencedObject(static_cast<UObjectTestNode*>(InThis)->Declared);
}
