#pragma once

/** Longest name that older platforms accepted, terminating NUL included. */
#define PROP_NAME_MAX 32
/** Longest value, terminating NUL included. */
#define PROP_VALUE_MAX 92
