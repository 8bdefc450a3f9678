/* The barest library that starts a thread with a timer in it. */

#include <pthread.h>
#include <semaphore.h>
#include <stddef.h>
#include <sys/timerfd.h>
#include <unistd.h>

static sem_t armed;

static void *tick(void *unused)
{
    const struct itimerspec minute = {{60, 0}, {60, 0}};
    unsigned long long expirations;
    const int timer = timerfd_create(CLOCK_MONOTONIC, 0);
    timerfd_settime(timer, 0, &minute, NULL);
    sem_post(&armed);
    while (read(timer, &expirations, sizeof expirations) > 0) { }
    return unused;
}

/* 0 once the timer runs. */
int bare_start(void);

int bare_start(void)
{
    pthread_t thread;
    sem_init(&armed, 0, 0);
    return pthread_create(&thread, NULL, tick, NULL) || sem_wait(&armed);
}
