file(GLOB bookings ${FROM}/*.pnr)
file(REMOVE_RECURSE ${TO})
file(COPY ${bookings} DESTINATION ${TO})
