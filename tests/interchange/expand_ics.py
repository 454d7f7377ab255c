#!/usr/bin/python3
"""Lists the occurrences of every item of an iCalendar file between two dates, as an
independent reader expands them: one line "UID yyyy/mm/dd" per occurrence, in the zone
of its start. Usage: expand_ics.py FILE FIRST LAST   (dates yyyy-mm-dd, both inclusive)."""
import datetime
import sys

import icalendar
import recurring_ical_events


def main():
    path, first, last = sys.argv[1:4]
    with open(path, "rb") as stream:
        calendar = icalendar.Calendar.from_ical(stream.read())
    start = datetime.date.fromisoformat(first)
    end = datetime.date.fromisoformat(last) + datetime.timedelta(days=1)
    lines = []
    for event in recurring_ical_events.of(calendar).between(start, end):
        when = event["DTSTART"].dt
        day = when.date() if isinstance(when, datetime.datetime) else when
        if start <= day < end:
            lines.append(f"{event['UID']} {day:%Y/%m/%d}")
    print("\n".join(sorted(lines)))


if __name__ == "__main__":
    main()
