#pragma once

/* A bare client of the database, in C: sends statements as they are and reads every column. */

#ifdef __cplusplus
extern "C" {
#endif

#include <stddef.h>

struct plain_account {
    const char *socket;
    const char *user;
    const char *password;
    const char *database;
};

enum plain_kind { PLAIN_QUERY, PLAIN_PREPARE, PLAIN_EXECUTE, PLAIN_RESET, PLAIN_CLOSE };

struct plain_text {
    const char *data;
    unsigned long length;
};

/* One thing that a client asks of the server. A prepared statement is closed before the next one is
   prepared. */
struct plain_step {
    enum plain_kind kind;
    struct plain_text text; /* of PLAIN_QUERY and PLAIN_PREPARE */
    const struct plain_text *values; /* of PLAIN_EXECUTE, at most PLAIN_VALUES */
    unsigned value_count;
};

enum { PLAIN_VALUES = 8 };

/* Connects, takes the steps one after the other, and disconnects. The number of bytes in the
   columns read, -1 when something failed (the reason is then on standard error). */
long long plain_tick(const struct plain_account *account, const struct plain_step *steps,
                     size_t count);

/* Reads a file line by line and finds the fields of each. The number of fields, -1 on failure. */
long long plain_read_file(const char *path);

#ifdef __cplusplus
}
#endif
