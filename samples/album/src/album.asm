; An Album of Light (Bich-ui geurimcheop): a picture show for DOS.
;
; Needs a 386, VGA and about 200 KB of memory. Its files lie in the current directory:
;   PICTURES.DAT  the pictures, made by pictures.py: for each a palette and its pixels
;   READY.TXT     written when the first picture stands on the screen
;
; This file: the road through the pictures. What several programs use lies in samples/lib.

%include "start.asm"

kPictures       equ 7
kPictureBytes   equ kPaletteBytes + kScreenBytes
kShowTicks      equ kTicksPerSecond * 12

; Opens the pictures while a message can still be read.
Prepare:
        mov     dx, name_pictures
        mov     ax, 3D00h
        int     21h
        jc      .none
        mov     [pictures_file], ax
        mov     bx, ax
        xor     cx, cx
        xor     dx, dx
        mov     ax, 4202h               ; to the end
        int     21h
        jc      .none
        push    dx
        push    ax
        pop     eax
        cmp     eax, kPictureBytes * kPictures
        jne     .none
        ret
.none:  mov     dx, text_no_pictures
        mov     ah, 9
        int     21h
        mov     ax, 4C01h
        int     21h

; Picture after picture, until Esc.
MainLoop:
        call    FindTallFont
        call    ForgetKeys              ; who waits for the file may press a key at once
        mov     byte [caption_shown], 1
        mov     byte [hint_shown], 1
.picture:
        call    LoadPicture
        call    DrawFrame
        call    FadeIn
        call    TellReady
        mov     word [shown_ticks], 0
.wait:  call    TakeTicks
        cmp     byte [paused], 0
        jne     .key
        add     [shown_ticks], ax
        cmp     word [shown_ticks], kShowTicks
        jae     .next
.key:   call    NextPress
        jz      .wait
        mov     bx, key_deeds
.find:  cmp     byte [bx], 0
        je      .wait
        cmp     [bx], al
        je      .found
        add     bx, 3
        jmp     .find
.found: call    [bx + 1]
        jc      .leave                  ; Esc
        jz      .wait                   ; the picture stays
        jmp     .turn
.next:  call    GoForward
.turn:  mov     byte [hint_shown], 0
        call    FadeOut
        jmp     .picture
.leave: ret

; What keys do. Carry: the show ends; zero flag: the picture stays.
key_deeds:
        db      kKeyEsc
        dw      EndShow
        db      kKeyRight
        dw      GoForward
        db      kKeySpace
        dw      GoForward
        db      kKeyEnter
        dw      GoForward
        db      kKeyPageDown
        dw      GoForward
        db      kKeyLeft
        dw      GoBack
        db      kKeyBackspace
        dw      GoBack
        db      kKeyPageUp
        dw      GoBack
        db      kKeyP
        dw      TogglePause
        db      kKeyC
        dw      ToggleCaption
        db      kKeyH
        dw      ToggleHint
        db      0

kKeyP           equ 19h
kKeyH           equ 23h
kKeyC           equ 2Eh
kKeySpace       equ 39h
kKeyPageUp      equ 49h
kKeyPageDown    equ 51h

EndShow:
        stc
        ret

GoForward:
        mov     ax, [number]
        inc     ax
        cmp     ax, kPictures
        jb      GoTo
        xor     ax, ax
        jmp     GoTo

GoBack: mov     ax, [number]
        sub     ax, 1
        jnc     GoTo
        mov     ax, kPictures - 1
GoTo:   mov     [number], ax
        or      al, 0FFh                ; zero flag and carry clear
        ret

TogglePause:
        xor     byte [paused], 1
        mov     word [shown_ticks], 0
        jmp     RedrawFrame
ToggleCaption:
        xor     byte [caption_shown], 1
        jmp     RedrawFrame
ToggleHint:
        xor     byte [hint_shown], 1
RedrawFrame:
        call    DrawFrame
        xor     ax, ax                  ; zero flag set, carry clear
        ret

; Reads the palette and the pixels of the picture `number`. What can't be read stays as it was.
LoadPicture:
        movzx   edx, word [number]
        imul    edx, edx, kPictureBytes
        mov     ecx, edx
        shr     ecx, 16
        mov     bx, [pictures_file]
        mov     ax, 4200h
        int     21h
        mov     dx, palette
        mov     cx, kPaletteBytes
        mov     ah, 3Fh
        int     21h
        push    ds
        mov     ds, [picture]
        xor     dx, dx
        mov     cx, kScreenBytes
        mov     ah, 3Fh
        int     21h
        pop     ds
        push    ds
        pop     es
        mov     si, own_colours
        mov     di, palette + kDark * 3
        mov     cx, 6
        rep     movsb
        ret

; The picture, and over it what is to be read.
DrawFrame:
        call    BeginFrame
        cmp     byte [hint_shown], 0
        je      .caption
        mov     si, text_hint
        call    HangulWidth
        neg     ax
        add     ax, kWidth
        shr     ax, 1
        mov     dx, 6
        call    DrawOutlined
.caption:
        cmp     byte [caption_shown], 0
        je      .show
        mov     bx, [number]
        shl     bx, 1
        mov     si, [captions + bx]
        mov     ax, 8
        mov     dx, kCaptionY
        call    DrawOutlined
        mov     si, text_paused
        cmp     byte [paused], 0
        jne     .right
        mov     ax, [number]
        add     al, '1'
        mov     [text_number], al
        mov     si, text_number
.right: call    HangulWidth
        neg     ax
        add     ax, kWidth - 8
        mov     dx, kCaptionY
        call    DrawOutlined
.show:  jmp     ShowFrame

; SI = text, AX = x, DX = y: light, with a dark line all around, to be read on any picture.
DrawOutlined:
        mov     bx, outline
        mov     cx, 9
.next:  push    ax
        push    dx
        push    bx
        push    cx
        movsx   di, byte [bx]
        add     ax, di
        movsx   di, byte [bx + 1]
        add     dx, di
        mov     bl, kDark
        cmp     cx, 1
        jne     .draw
        mov     bl, kLight
.draw:  call    DrawHangul
        pop     cx
        pop     bx
        pop     dx
        pop     ax
        add     bx, 2
        loop    .next
        ret

outline:        db -1, -1,  0, -1,  1, -1,  -1, 0,  1, 0,  -1, 1,  0, 1,  1, 1,  0, 0

%include "screen.asm"
%include "palette.asm"
%include "timer.asm"
%include "keyboard.asm"
%include "sound.asm"
%include "files.asm"
%include "hangultext.asm"

kCaptionY       equ kHeight - 22
kDark           equ 240                 ; behind the colours of the pictures
kLight          equ 241
own_colours:    db 2, 2, 6,  63, 61, 54

palette_ramps:  db 0, 0                 ; each picture brings its palette
colour_of_letter:                       ; there are no sprites

name_pictures:  db "PICTURES.DAT", 0
text_no_pictures:
                db "PICTURES.DAT is missing or not whole.", 13, 10, "$"
text_no_memory: db "An Album of Light needs 200 KB of free memory.", 13, 10, "$"

captions:       dw .lake, .sea, .ink, .snow, .planet, .whirl, .paint
.lake:          db "은하수가 걸린 호수", 0
.sea:           db "해가 지는 바다", 0
.ink:           db "안개 낀 먹빛 산", 0
.snow:          db "눈밭 위의 오로라", 0
.planet:        db "고리를 두른 행성", 0
.whirl:         db "끝없는 소용돌이", 0
.paint:         db "물 위에 풀린 물감", 0
text_hint:      db 1Bh, " ", 1Ah, " 넘기기  P 멈춤  C 글자  Esc 끝", 0
text_paused:    db "멈춤", 0
text_number:    db "1/7", 0

section .bss
pictures_file:  resw 1
number:         resw 1
shown_ticks:    resw 1
paused:         resb 1
caption_shown:  resb 1
hint_shown:     resb 1
variables_end:
                resb 1024
stack_top:
