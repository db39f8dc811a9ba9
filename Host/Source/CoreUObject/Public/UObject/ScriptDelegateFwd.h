#pragma once

struct FWeakObjectPtr;

template<typename TWeakPtr = FWeakObjectPtr>
class TScriptDelegate;

template<typename TWeakPtr = FWeakObjectPtr>
class TMulticastScriptDelegate;

/** A function of an object, by name. */
using FScriptDelegate = TScriptDelegate<>;
/** Functions of objects, by name. */
using FMulticastScriptDelegate = TMulticastScriptDelegate<>;
