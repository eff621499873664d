file(GLOB bookings ${FROM}/*.pnr ${FROM}/*.ini ${FROM}/menu.txt)
file(REMOVE_RECURSE ${TO})
file(COPY ${bookings} DESTINATION ${TO})
