#include "plainclient.h"

#include <mysql.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static long long read_results(MYSQL *mysql)
{
    long long bytes = 0;
    int more;
    do {
        MYSQL_RES *result = mysql_store_result(mysql);
        if (result) {
            const unsigned columns = mysql_num_fields(result);
            while (mysql_fetch_row(result)) {
                const unsigned long *lengths = mysql_fetch_lengths(result);
                for (unsigned i = 0; i < columns; ++i)
                    bytes += (long long)lengths[i];
            }
            mysql_free_result(result);
        } else if (mysql_field_count(mysql) != 0) {
            return -1;
        }
        more = mysql_next_result(mysql);
    } while (more == 0);
    return more < 0 ? bytes : -1;
}

static int execute(MYSQL_STMT *statement, const struct plain_step *step)
{
    MYSQL_BIND binds[PLAIN_VALUES];
    memset(binds, 0, sizeof binds);
    for (unsigned i = 0; i < step->value_count; ++i) {
        binds[i].buffer_type = MYSQL_TYPE_STRING;
        binds[i].buffer = (void *)step->values[i].data;
        binds[i].buffer_length = step->values[i].length;
    }
    return mysql_stmt_bind_param(statement, binds) || mysql_stmt_execute(statement);
}

static long long take(MYSQL *mysql, MYSQL_STMT **statement, const struct plain_step *step)
{
    switch (step->kind) {
    case PLAIN_QUERY:
        return mysql_real_query(mysql, step->text.data, step->text.length) ? -1
                                                                           : read_results(mysql);
    case PLAIN_PREPARE:
        *statement = mysql_stmt_init(mysql);
        return mysql_stmt_prepare(*statement, step->text.data, step->text.length) ? -1 : 0;
    case PLAIN_EXECUTE:
        return execute(*statement, step) ? -1 : 0;
    case PLAIN_RESET:
        return mysql_stmt_reset(*statement) ? -1 : 0;
    case PLAIN_CLOSE:
        return mysql_stmt_close(*statement) ? -1 : 0;
    }
    return -1;
}

long long plain_tick(const struct plain_account *account, const struct plain_step *steps,
                     size_t count)
{
    MYSQL *mysql = mysql_init(NULL);
    MYSQL_STMT *statement = NULL;
    long long bytes = 0;
    if (!mysql_real_connect(mysql, NULL, account->user, account->password, account->database, 0,
                            account->socket, CLIENT_MULTI_STATEMENTS))
        bytes = -1;
    for (size_t i = 0; i < count && bytes >= 0; ++i) {
        const long long read = take(mysql, &statement, &steps[i]);
        bytes = read < 0 ? -1 : bytes + read;
        if (read < 0)
            fprintf(stderr, "%.*s\n", (int)steps[i].text.length, steps[i].text.data);
    }
    if (bytes < 0)
        fprintf(stderr, "The bare client: %s\n", mysql_error(mysql));
    mysql_close(mysql);
    return bytes;
}

long long plain_read_file(const char *path)
{
    FILE *file = fopen(path, "r");
    char *line = NULL;
    size_t size = 0;
    ssize_t length;
    long long fields = 0;
    if (!file)
        return -1;
    while ((length = getline(&line, &size, file)) > 0) {
        const char *end = line + length;
        for (const char *at = line; at; ++fields) {
            at = memchr(at, '|', (size_t)(end - at));
            if (at)
                ++at;
        }
    }
    free(line);
    fclose(file);
    return fields;
}
